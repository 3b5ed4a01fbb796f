#include <gtest/gtest.h>

#include "platform/simulated/ValueReaders.h"
#include "simulated/DeskFileText.h"

namespace vantrel::simulated {
namespace {

std::optional<Occurrence> nakOf(const std::string& field) {
    const Desk desk = readDeskText(deskWithPersonality(field));
    if (desk.displays.empty() || !desk.displays.front().monitor) return std::nullopt;
    return desk.displays.front().monitor->personality.nak;
}

TEST(ValueReaders, ReadsOccurrences) {
    const auto nak = [](const std::string& value) { return nakOf(R"("nak": )" + value); };
    EXPECT_EQ(nak("false"), (Occurrence{0, 0, 0}));
    EXPECT_EQ(nak("true"), (Occurrence{0, 1, 0}));
    EXPECT_EQ(nak("0"), (Occurrence{0, 0, 0}));
    EXPECT_EQ(nak("0.25"), (Occurrence{0.25, 0, 0}));
    EXPECT_EQ(nak("1"), (Occurrence{1, 0, 0}));
    EXPECT_EQ(nak(R"({"every": 3})"), (Occurrence{0, 3, 0}));
    EXPECT_EQ(nak(R"({"first": 3})"), (Occurrence{0, 0, 3}));
    EXPECT_EQ(nak(R"({"probability": 0.5, "every": 4, "first": 2})"), (Occurrence{0.5, 4, 2}));
    EXPECT_EQ(nak("{}"), (Occurrence{0, 0, 0}));
}

TEST(ValueReaders, RefusesANegativeDuration) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("replyLatencyMs": -0.5)")),
              "x.json: displays[0].monitor.personality.replyLatencyMs: -0.5 is less than 0");
}

TEST(ValueReaders, RefusesADurationOfMoreThanADay) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("deafAfterWakeMs": 86400001)")),
              "x.json: displays[0].monitor.personality.deafAfterWakeMs: 86400001 is more than 86400000");
}

TEST(ValueReaders, RefusesADurationThatIsNone) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("replyLatencyMs": "40 ms")")),
              "x.json: displays[0].monitor.personality.replyLatencyMs: must be a number, not a text");
}

TEST(ValueReaders, RefusesAnOccurrenceThatIsNone) {
    EXPECT_EQ(
        mistakeIn(deskWithPersonality(R"("nak": "often")")),
        "x.json: displays[0].monitor.personality.nak: must be true, false, a probability, {\"every\": N} or "
        "{\"first\": N}, not a text");
}

TEST(ValueReaders, RefusesAProbabilityAboveOne) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("nak": 50)")),
              "x.json: displays[0].monitor.personality.nak: 50 is more than 1");
}

TEST(ValueReaders, RefusesAnOccurrenceOfEveryNone) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("nak": {"every": 0})")),
              "x.json: displays[0].monitor.personality.nak.every: 0 is less than 1");
}

TEST(ValueReaders, RefusesAnOccurrenceOfTheFirstNone) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("nak": {"first": 0})")),
              "x.json: displays[0].monitor.personality.nak.first: 0 is less than 1");
}

}  // namespace
}  // namespace vantrel::simulated
