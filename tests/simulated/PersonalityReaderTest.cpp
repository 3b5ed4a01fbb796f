#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/PersonalityReader.h"
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

TEST(PersonalityReader, IsWellBehavedUnlessItSaysOtherwise) {
    Personality good;
    EXPECT_EQ(good.replyLatency, 40ms);
    EXPECT_EQ(good.capabilitiesLatency, 40ms);
    EXPECT_EQ(good.fragmentSize, 32U);
    EXPECT_EQ(good.unsupported, UnsupportedReply::resultCode);
    EXPECT_EQ(good.nak, Occurrence{});
    EXPECT_EQ(personalityWith(""), good);
}

TEST(PersonalityReader, EachKnobTurnsItsMemberAndNoOther) {
    for (const Knob& knob : knobs()) {
        SCOPED_TRACE(knob.key);
        Personality expected;
        knob.turn(expected);
        EXPECT_NE(expected, Personality{});
        EXPECT_EQ(personalityWith('"' + knob.key + "\": " + knob.value), expected);
    }
}

TEST(PersonalityReader, EveryKnobIsTriedHere) {
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

TEST(PersonalityReader, KnowsEveryKindOfReplyFault) {
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

TEST(PersonalityReader, KnowsEveryKindOfFragmentFault) {
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

TEST(PersonalityReader, KnowsEveryUnsupportedReply) {
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

TEST(PersonalityReader, RefusesAnUnknownFieldDeepInside) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("inputSwitch": {"time": 4})")),
              "x.json: displays[0].monitor.personality.inputSwitch.time: is not a known field");
}

TEST(PersonalityReader, RefusesAnUnknownKindOfReplyFault) {
    EXPECT_EQ(
        mistakeIn(deskWithPersonality(R"("replyFaults": [{"kind": "cut"}, {"kind": "sharp"}])")),
        "x.json: displays[0].monitor.personality.replyFaults[1].kind: \"sharp\" is not one of wrongChecksum, "
        "previousCode, lostFirstBytes, doubledSource, doubledLength, lengthNine, cut, echo, nullMessage, "
        "rotatedNulls, constantBytes, lastValue");
}

TEST(PersonalityReader, RefusesAReplyFaultWithoutAKind) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("replyFaults": [{}])")),
              "x.json: displays[0].monitor.personality.replyFaults[0].kind: is missing");
}

TEST(PersonalityReader, RefusesAReplyFaultBeyondTheReply) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("replyFaults": [{"kind": "cut", "bytes": 12}])")),
              "x.json: displays[0].monitor.personality.replyFaults[0].bytes: 12 is more than 11");
}

TEST(PersonalityReader, RefusesAReplyFaultThatNamesACodeTwice) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("replyFaults": [{"kind": "cut", "codes": [16, "0x10"]}])")),
              "x.json: displays[0].monitor.personality.replyFaults[0].codes[1]: is there already");
}

TEST(PersonalityReader, RefusesAnUnknownKindOfFragmentFault) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("fragmentFaults": [{"kind": "cut"}])")),
              "x.json: displays[0].monitor.personality.fragmentFaults[0].kind: \"cut\" is not one of "
              "wrongChecksum, "
              "damagedHeader, wrongOffset, nullMessage");
}

TEST(PersonalityReader, RefusesAFragmentFaultWithoutAKind) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("fragmentFaults": [{"when": true}])")),
              "x.json: displays[0].monitor.personality.fragmentFaults[0].kind: is missing");
}

TEST(PersonalityReader, RefusesAnUnknownUnsupportedReply) {
    EXPECT_EQ(
        mistakeIn(deskWithPersonality(R"("unsupported": "no")")),
        "x.json: displays[0].monitor.personality.unsupported: \"no\" is not one of resultCode, nullMessage, "
        "lastValue, zeros, nak");
}

TEST(PersonalityReader, RefusesASpanWithoutALength) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("nakDuring": [{"fromMs": 1}])")),
              "x.json: displays[0].monitor.personality.nakDuring[0].lengthMs: is missing");
}

TEST(PersonalityReader, RefusesASpanWithoutAStart) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("nakDuring": [{"lengthMs": 1}])")),
              "x.json: displays[0].monitor.personality.nakDuring[0].fromMs: is missing");
}

TEST(PersonalityReader, RefusesAMonitorThatNeedsNoWrites) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("writesNeeded": 0)")),
              "x.json: displays[0].monitor.personality.writesNeeded: 0 is less than 1");
}

TEST(PersonalityReader, RefusesAFragmentWithoutBytes) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("fragmentSizeBytes": 0)")),
              "x.json: displays[0].monitor.personality.fragmentSizeBytes: 0 is less than 1");
}

TEST(PersonalityReader, RefusesAFragmentLongerThanAllowed) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("fragmentSizeBytes": 33)")),
              "x.json: displays[0].monitor.personality.fragmentSizeBytes: 33 is more than 32");
}

TEST(PersonalityReader, RefusesAReadingThatIsNamedByNoInput) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("inputReadings": {"HDMI 1": 1})")),
              "x.json: displays[0].monitor.personality.inputReadings[\"HDMI 1\"]: must be named by an input "
              "value like "
              "0x0F");
}

TEST(PersonalityReader, RefusesAnInputThatIsReadInTwoWays) {
    EXPECT_EQ(
        mistakeIn(deskWithPersonality(R"("inputReadings": {"0x0F": 1, "0xF": 2})")),
        "x.json: displays[0].monitor.personality.inputReadings.0xF: names the same input as another key");
}

}  // namespace
}  // namespace vantrel::simulated
