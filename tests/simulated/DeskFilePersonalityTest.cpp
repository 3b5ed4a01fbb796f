#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/DeskFile.h"
#include "simulated/DeskFileText.h"

namespace vantrel::simulated {
namespace {

using namespace std::chrono_literals;

Personality personalityWith(const std::string& fields) {
    Desk desk = readDeskText(deskWithPersonality(fields));
    if (desk.displays.empty() || !desk.displays.front().monitor) {
        ADD_FAILURE() << desk.title;
        return {};
    }
    return desk.displays.front().monitor->personality;
}

constexpr Occurrence always{.probability = 0, .every = 1, .first = 0};

struct Knob {
    std::string key;
    std::string value;
    std::function<void(Personality&)> turn;
};

const std::vector<Knob>& knobs() {
    using P = Personality;
    static const std::vector<Knob> all{
        {"replyLatencyMs", "55", [](P& p) { p.replyLatency = 55ms; }},
        {"capabilitiesLatencyMs", "52.5", [](P& p) { p.capabilitiesLatency = 52500us; }},
        {"latencyJitterMs", "0.001", [](P& p) { p.latencyJitter = 1us; }},
        {"byteTimeUs", "90", [](P& p) { p.byteTime = 90us; }},
        {"dead", "true", [](P& p) { p.dead = true; }},
        {"nak", "true", [](P& p) { p.nak = always; }},
        {"nakDuring", R"([{"fromMs": 1, "lengthMs": 2}, {"fromMs": 3, "lengthMs": 0}])",
         [](P& p) {
             p.nakDuring = {{1ms, 2ms}, {3ms, 0ms}};
         }},
        {"ignoresWrongChecksums", "false", [](P& p) { p.ignoresWrongChecksums = false; }},
        {"replyFaults", R"([{"kind": "cut", "when": {"every": 2}, "codes": ["0x10", 18], "bytes": 8},
                            {"kind": "constantBytes", "value": "0x30"}])",
         [](P& p) {
             p.replyFaults = {{ReplyFault::Kind::cut, {0, 2, 0}, {0x10, 0x12}, 8, 0x6E},
                              {ReplyFault::Kind::constantBytes, always, {}, 4, 0x30}};
         }},
        {"unsupported", R"("zeros")", [](P& p) { p.unsupported = UnsupportedReply::zeros; }},
        {"writesNeeded", "3", [](P& p) { p.writesNeeded = 3; }},
        {"writesNeedARead", "true", [](P& p) { p.writesNeedARead = true; }},
        {"writesLost", "0.5", [](P& p) { p.writesLost.probability = 0.5; }},
        {"writesRevertAfterMs", "86400000", [](P& p) { p.writesRevertAfter = 24h; }},
        {"capabilitiesCutAfterBytes", "0", [](P& p) { p.capabilitiesCutAfter = 0; }},
        {"fragmentSizeBytes", "1", [](P& p) { p.fragmentSize = 1; }},
        {"fragmentFaults", R"([{"kind": "wrongOffset", "when": {"first": 4}}, {"kind": "damagedHeader"}])",
         [](P& p) {
             p.fragmentFaults = {{FragmentFault::Kind::wrongOffset, {0, 0, 4}},
                                 {FragmentFault::Kind::damagedHeader, always}};
         }},
        {"inputReadings", R"({"0x11": 1, "0x0F": "0x0F0F"})",
         [](P& p) {
             p.inputReadings = {{0x11, 1}, {0x0F, 0x0F0F}};
         }},
        {"inputSwitch", R"({"timeMs": 1, "silent": true, "pulseMs": 2, "pulseAfterMs": 3, "returns": true,
                            "ignored": {"first": 1}})",
         [](P& p) {
             p.inputSwitch = {1ms, true, 2ms, 3ms, always, {0, 0, 1}};
         }},
        {"silentOnOtherInputs", "true", [](P& p) { p.silentOnOtherInputs = true; }},
        {"deafAfterWakeMs", "4000", [](P& p) { p.deafAfterWake = 4s; }},
        {"staleAfterReconfiguration", "true", [](P& p) { p.staleAfterReconfiguration = true; }},
    };
    return all;
}

TEST(DeskFilePersonality, IsWellBehavedUnlessItSaysOtherwise) {
    Personality good;
    EXPECT_EQ(good.replyLatency, 40ms);
    EXPECT_EQ(good.capabilitiesLatency, 40ms);
    EXPECT_EQ(good.fragmentSize, 32U);
    EXPECT_EQ(good.unsupported, UnsupportedReply::resultCode);
    EXPECT_EQ(good.nak, Occurrence{});
    EXPECT_EQ(personalityWith(""), good);
}

TEST(DeskFilePersonality, EachKnobTurnsItsMemberAndNoOther) {
    for (const Knob& knob : knobs()) {
        SCOPED_TRACE(knob.key);
        Personality expected;
        knob.turn(expected);
        EXPECT_NE(expected, Personality{});
        EXPECT_EQ(personalityWith('"' + knob.key + "\": " + knob.value), expected);
    }
}

TEST(DeskFilePersonality, EveryKnobIsTriedHere) {
    std::vector<std::string_view> tried;
    for (const Knob& knob : knobs()) tried.push_back(knob.key);
    for (const DeskFile::Words& words : DeskFile::vocabulary()) {
        if (words.heading == "Personality") {
            EXPECT_EQ(words.words, tried);
            return;
        }
    }
    FAIL() << "there is no vocabulary of personalities";
}

TEST(DeskFilePersonality, KnowsEveryKindOfReplyFault) {
    using Kind = ReplyFault::Kind;
    const std::vector<std::pair<std::string, Kind>> kinds{{"wrongChecksum", Kind::wrongChecksum},
                                                          {"previousCode", Kind::previousCode},
                                                          {"lostFirstBytes", Kind::lostFirstBytes},
                                                          {"doubledSource", Kind::doubledSource},
                                                          {"doubledLength", Kind::doubledLength},
                                                          {"lengthNine", Kind::lengthNine},
                                                          {"cut", Kind::cut},
                                                          {"echo", Kind::echo},
                                                          {"nullMessage", Kind::nullMessage},
                                                          {"rotatedNulls", Kind::rotatedNulls},
                                                          {"constantBytes", Kind::constantBytes},
                                                          {"lastValue", Kind::lastValue}};
    for (const auto& [word, kind] : kinds) {
        const auto faults = personalityWith(R"("replyFaults": [{"kind": ")" + word + R"("}])").replyFaults;
        EXPECT_THAT(faults, testing::ElementsAre(ReplyFault{kind, always, {}, 4, 0x6E})) << word;
    }
}

TEST(DeskFilePersonality, KnowsEveryKindOfFragmentFault) {
    using Kind = FragmentFault::Kind;
    const std::vector<std::pair<std::string, Kind>> kinds{{"wrongChecksum", Kind::wrongChecksum},
                                                          {"damagedHeader", Kind::damagedHeader},
                                                          {"wrongOffset", Kind::wrongOffset},
                                                          {"nullMessage", Kind::nullMessage}};
    for (const auto& [word, kind] : kinds) {
        const auto faults =
            personalityWith(R"("fragmentFaults": [{"kind": ")" + word + R"("}])").fragmentFaults;
        EXPECT_THAT(faults, testing::ElementsAre(FragmentFault{kind, always})) << word;
    }
}

TEST(DeskFilePersonality, KnowsEveryUnsupportedReply) {
    const std::vector<std::pair<std::string, UnsupportedReply>> replies{
        {"resultCode", UnsupportedReply::resultCode},
        {"nullMessage", UnsupportedReply::nullMessage},
        {"lastValue", UnsupportedReply::lastValue},
        {"zeros", UnsupportedReply::zeros},
        {"nak", UnsupportedReply::nak}};
    for (const auto& [word, reply] : replies) {
        EXPECT_EQ(personalityWith(R"("unsupported": ")" + word + '"').unsupported, reply) << word;
    }
}

TEST(DeskFilePersonality, ReadsOccurrences) {
    const auto nak = [](const std::string& value) { return personalityWith(R"("nak": )" + value).nak; };
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

}  // namespace
}  // namespace vantrel::simulated
