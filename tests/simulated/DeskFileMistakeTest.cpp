#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/simulated/DeskFile.h"
#include "simulated/DeskFileText.h"

namespace vantrel::simulated {
namespace {

// Desks with one mistake each, and the line that a person gets.

TEST(DeskFileMistake, EmptyText) {
    EXPECT_EQ(mistakeIn(""),
              "x.json: line 1, column 1: unexpected end of input; expected '[', '{', or a literal");
}

TEST(DeskFileMistake, BadJSONInALaterLine) {
    EXPECT_EQ(mistakeIn("{\n  \"title\": \"T\",\n  \"displays\" [] }"),
              "x.json: line 3, column 14: unexpected '['; expected ':'");
}

TEST(DeskFileMistake, TextAfterTheDesk) {
    EXPECT_EQ(mistakeIn("{} ,"), "x.json: line 1, column 4: unexpected ','; expected end of input");
}

TEST(DeskFileMistake, UnfinishedText) {
    EXPECT_EQ(mistakeIn("{\n"), "x.json: line 2, column 1: unexpected end of input; expected string literal");
}

TEST(DeskFileMistake, ALineBreakInAString) {
    EXPECT_EQ(
        mistakeIn("{\"title\": \"a\nb\"}"),
        "x.json: line 1, column 13: invalid string: control character U+000A (LF) must be escaped to \\u000A "
        "or \\n");
}

TEST(DeskFileMistake, BytesThatAreNotUTF8) {
    EXPECT_EQ(mistakeIn("{\"title\": \"\xFF\"}"),
              "x.json: line 1, column 12: invalid string: ill-formed UTF-8 byte");
}

TEST(DeskFileMistake, BytesThatAreNoText) {
    EXPECT_EQ(mistakeIn(std::string("\0\0\0", 3)), "x.json: line 1, column 1: unexpected NUL byte");
}

TEST(DeskFileMistake, BytesThatAreHiddenBehindANUL) {
    EXPECT_EQ(mistakeIn(deskWith("") + std::string("\0{", 2)),
              "x.json: line 1, column 80: unexpected NUL byte");
}

TEST(DeskFileMistake, AWordThatIsNoJSON) {
    EXPECT_EQ(mistakeIn("{\"title\": none}"), "x.json: line 1, column 12: invalid literal");
}

TEST(DeskFileMistake, ANumberThatNothingCanHold) {
    EXPECT_EQ(mistakeIn(R"({"seed": 1e999})"), "x.json: line 1, column 14: the number is too large");
}

TEST(DeskFileMistake, AKeyThatAppearsTwice) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [{"id": 1, "name": "A", "id": 2}]})"),
              "x.json: displays[0].id: appears twice");
}

TEST(DeskFileMistake, AKeyThatAppearsTwiceAtTheTop) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "title": "T"})"), "x.json: title: appears twice");
}

TEST(DeskFileMistake, TooDeepNesting) {
    const std::string open = R"({"a":)";
    std::string text;
    for (int level = 0; level < 40; ++level) text += open;
    std::string place = "a";
    for (int level = 1; level < 32; ++level) place += ".a";
    EXPECT_EQ(mistakeIn(text), "x.json: " + place + ": is nested deeper than 32 levels");
}

TEST(DeskFileMistake, NestingThatWouldExhaustAStack) {
    std::string place;
    for (int level = 0; level < 32; ++level) place += "[0]";
    EXPECT_EQ(mistakeIn(std::string(1'000'000, '[')),
              "x.json: " + place + ": is nested deeper than 32 levels");
}

TEST(DeskFileMistake, NestingUpToTheLimitIsNone) {
    std::string value = "1";
    // The desk, its registry, the entry and its properties are four levels.
    for (int level = 0; level < 28; ++level) value = "[" + value + "]";
    EXPECT_EQ(
        mistakeIn(deskWith("", R"(, "registry": [{"entry": "X", "properties": {"p": )" + value + "}}]")), "");
    EXPECT_EQ(
        mistakeIn(deskWith("", R"(, "registry": [{"entry": "X", "properties": {"p": [)" + value + "]}}]")),
        "x.json: registry[0].properties.p" +
            [] {
                std::string place;
                for (int level = 0; level < 28; ++level) place += "[0]";
                return place;
            }() +
            ": is nested deeper than 32 levels");
}

TEST(DeskFileMistake, ADeskThatIsNoObject) {
    EXPECT_EQ(mistakeIn("[]"), "x.json: must be an object, not a list");
}

TEST(DeskFileMistake, NoTitle) { EXPECT_EQ(mistakeIn(R"({"displays": []})"), "x.json: title: is missing"); }

TEST(DeskFileMistake, NoDisplays) {
    EXPECT_EQ(mistakeIn(R"({"title": "T"})"), "x.json: displays: is missing");
}

TEST(DeskFileMistake, ADisplayWithoutAnID) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [{"name": "A", "vendor": 1, "product": 1}]})"),
              "x.json: displays[0].id: is missing");
}

TEST(DeskFileMistake, ADisplayWithoutAName) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [{"id": 1, "vendor": 1, "product": 1}]})"),
              "x.json: displays[0].name: is missing");
}

TEST(DeskFileMistake, ADisplayWithoutAVendor) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [{"id": 1, "name": "A", "product": 1}]})"),
              "x.json: displays[0].vendor: is missing");
}

TEST(DeskFileMistake, ADisplayWithoutAProduct) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [{"id": 1, "name": "A", "vendor": 1}]})"),
              "x.json: displays[0].product: is missing");
}

TEST(DeskFileMistake, AnUnknownFieldOfTheDesk) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [], "colour": 1})"),
              "x.json: colour: is not a known field");
}

TEST(DeskFileMistake, AnUnknownFieldDeepInside) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("inputSwitch": {"time": 4})")),
              "x.json: displays[0].monitor.personality.inputSwitch.time: is not a known field");
}

TEST(DeskFileMistake, AnUnknownFieldOfALongOddName) {
    EXPECT_EQ(mistakeIn("{\"a\\nb\\u00e9 " + std::string(10'000, 'x') + "\": 1}"),
              "x.json: [\"a\\nb\\u00e9 xxxxxxxxxxxxxxxxxxxxxxxxxxxx...\"]: is not a known field");
}

TEST(DeskFileMistake, AnUnknownFieldWithoutAName) {
    EXPECT_EQ(mistakeIn(R"({"": 1})"), "x.json: [\"\"]: is not a known field");
}

TEST(DeskFileMistake, ATextThatIsNone) {
    EXPECT_EQ(mistakeIn(R"({"title": 1, "displays": []})"), "x.json: title: must be a text, not 1");
}

TEST(DeskFileMistake, AListThatIsNone) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": {}})"),
              "x.json: displays: must be a list, not an object");
}

TEST(DeskFileMistake, AnObjectThatIsNone) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": ["A"]})"),
              "x.json: displays[0]: must be an object, not a text");
}

TEST(DeskFileMistake, AFlagThatIsNone) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "isConnected": 1)")),
              "x.json: displays[0].isConnected: must be true or false, not 1");
}

TEST(DeskFileMistake, ANumberThatIsNone) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "brightness": "0.5")")),
              "x.json: displays[0].brightness: must be a number, not a text");
}

TEST(DeskFileMistake, ACodeThatIsNone) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": null)")),
              "x.json: displays[0].serial: must be a whole number or a text like \"0x1A\", not null");
}

TEST(DeskFileMistake, ACountInHexadecimal) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "width": "0x10")")),
              "x.json: displays[0].width: must be a whole number, not a text");
}

TEST(DeskFileMistake, AFraction) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": 1.5)")),
              "x.json: displays[0].serial: must be a whole number, not 1.5");
}

TEST(DeskFileMistake, AHexadecimalTextWithOtherLetters) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": "0x04G2")")),
              "x.json: displays[0].serial: \"0x04G2\" is not a hexadecimal number like \"0x1A\"");
}

TEST(DeskFileMistake, AHexadecimalTextWithoutDigits) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": "0x")")),
              "x.json: displays[0].serial: \"0x\" is not a hexadecimal number like \"0x1A\"");
}

TEST(DeskFileMistake, AHexadecimalTextWithASign) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": "0x-1")")),
              "x.json: displays[0].serial: \"0x-1\" is not a hexadecimal number like \"0x1A\"");
}

TEST(DeskFileMistake, AHexadecimalTextLongerThanAnyNumber) {
    EXPECT_EQ(
        mistakeIn(deskWith(R"(, "serial": "0x00000000000000001")")),
        "x.json: displays[0].serial: \"0x00000000000000001\" is not a hexadecimal number like \"0x1A\"");
}

TEST(DeskFileMistake, ADecimalNumberInAText) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": "17")")),
              "x.json: displays[0].serial: \"17\" is not a hexadecimal number like \"0x1A\"");
}

TEST(DeskFileMistake, AFeaturesMaximumAboveItsRange) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("features": {"0x10": {"current": 1, "maximum": 70000}})")),
              "x.json: displays[0].monitor.features.0x10.maximum: 70000 is more than 65535");
}

TEST(DeskFileMistake, AHexadecimalValueAboveItsRange) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("features": {"0x10": {"current": "0x10000", "maximum": 1}})")),
              "x.json: displays[0].monitor.features.0x10.current: 0x10000 is more than 65535");
}

TEST(DeskFileMistake, AnIntegerThatOnlyAFractionCanHold) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": 99999999999999999999)")),
              "x.json: displays[0].serial: 1e+20 is more than 4294967295");
}

TEST(DeskFileMistake, ANegativeCode) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": -1)")), "x.json: displays[0].serial: -1 is less than 0");
}

TEST(DeskFileMistake, ANegativeDuration) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("replyLatencyMs": -0.5)")),
              "x.json: displays[0].monitor.personality.replyLatencyMs: -0.5 is less than 0");
}

TEST(DeskFileMistake, ADurationOfMoreThanADay) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("deafAfterWakeMs": 86400001)")),
              "x.json: displays[0].monitor.personality.deafAfterWakeMs: 86400001 is more than 86400000");
}

TEST(DeskFileMistake, ADurationThatIsNone) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("replyLatencyMs": "40 ms")")),
              "x.json: displays[0].monitor.personality.replyLatencyMs: must be a number, not a text");
}

TEST(DeskFileMistake, ABrightnessAboveOne) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "brightness": 1.01)")),
              "x.json: displays[0].brightness: 1.01 is more than 1");
}

TEST(DeskFileMistake, AScreenWithoutPixels) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "height": 0)")), "x.json: displays[0].height: 0 is less than 1");
}

TEST(DeskFileMistake, AHugeTransferTable) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "transferTableCapacity": 65537)")),
              "x.json: displays[0].transferTableCapacity: 65537 is more than 65536");
}

TEST(DeskFileMistake, TheNullDisplaysID) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [{"id": 0, "name": "A", "vendor": 1, "product": 1}]})"),
              "x.json: displays[0].id: 0 is less than 1");
}

TEST(DeskFileMistake, AnIDOfTwoDisplays) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [
        {"id": 16, "name": "A", "vendor": 1, "product": 1}, {"id": "0x10", "name": "B", "vendor": 1, "product": 1}]})"),
              "x.json: displays[1].id: is already the id of displays[0]");
}

TEST(DeskFileMistake, TwoBuiltInDisplays) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [
        {"id": 1, "name": "A", "vendor": 1, "product": 1, "isBuiltIn": true},
        {"id": 2, "name": "B", "vendor": 1, "product": 1, "isBuiltIn": true}]})"),
              "x.json: displays[1].isBuiltIn: displays[0] is already the built-in display");
}

TEST(DeskFileMistake, AnUnknownPrivateFunction) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "missingSymbols": ["IOAVServiceReadI2C", "printf"])")),
              "x.json: missingSymbols[1]: \"printf\" is not the name of a private function");
}

TEST(DeskFileMistake, AFeatureWithoutACurrentValue) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("features": {"0x10": {"maximum": 1}})")),
              "x.json: displays[0].monitor.features.0x10.current: is missing");
}

TEST(DeskFileMistake, AFeatureWithoutAMaximum) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("features": {"0x10": {"current": 1}})")),
              "x.json: displays[0].monitor.features.0x10.maximum: is missing");
}

TEST(DeskFileMistake, AFeatureThatIsNamedByNoVCPCode) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("features": {"0x100": {"current": 1, "maximum": 1}})")),
              "x.json: displays[0].monitor.features.0x100: must be named by a VCP code like 0x10");
}

TEST(DeskFileMistake, ACodeThatIsNamedTwice) {
    EXPECT_EQ(
        mistakeIn(deskWithMonitor(
            R"("features": {"0x1A": {"current": 1, "maximum": 1}, "0x1a": {"current": 1, "maximum": 1}})")),
        "x.json: displays[0].monitor.features.0x1a: names the same code as another key");
}

TEST(DeskFileMistake, AFeatureThatComesFromTheInputs) {
    EXPECT_EQ(
        mistakeIn(deskWithMonitor(R"("inputs": {}, "features": {"0x60": {"current": 1, "maximum": 1}})")),
        "x.json: displays[0].monitor.features: 0x60 comes from inputs");
}

TEST(DeskFileMistake, AShownInputThatIsNotThere) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("inputs": {"available": ["0x0F"], "shown": "0x11"})")),
              "x.json: displays[0].monitor.inputs.shown: 0x11 is not among the available inputs");
}

TEST(DeskFileMistake, AComputerOnAnInputThatIsNotThere) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("inputs": {"available": ["0x0F"], "computer": 3})")),
              "x.json: displays[0].monitor.inputs.computer: 0x03 is not among the available inputs");
}

TEST(DeskFileMistake, InputsWithoutOne) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("inputs": {"available": []})")),
              "x.json: displays[0].monitor.inputs.available: must not be empty");
}

TEST(DeskFileMistake, AnInputThatIsListedTwice) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("inputs": {"available": [15, "0x0F"]})")),
              "x.json: displays[0].monitor.inputs.available[1]: is there already");
}

TEST(DeskFileMistake, CapabilitiesOfAnotherType) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("capabilities": 1)")),
              "x.json: displays[0].monitor.capabilities: must be a text or {\"hex\": \"28 70 ...\"}, not 1");
}

TEST(DeskFileMistake, CapabilitiesWithHalfAByte) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("capabilities": {"hex": "28 7"})")),
              "x.json: displays[0].monitor.capabilities.hex: \"28 7\" is not pairs of hexadecimal digits");
}

TEST(DeskFileMistake, CapabilitiesWithOtherLetters) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("capabilities": {"hex": "0x28"})")),
              "x.json: displays[0].monitor.capabilities.hex: \"0x28\" is not pairs of hexadecimal digits");
}

TEST(DeskFileMistake, CapabilitiesWithAnotherField) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("capabilities": {"hex": "28", "text": "("})")),
              "x.json: displays[0].monitor.capabilities.text: is not a known field");
}

TEST(DeskFileMistake, CapabilitiesBeyondAnyOffset) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("capabilities": ")" + std::string(65536, 'x') + R"(")")),
              "x.json: displays[0].monitor.capabilities: is longer than 65535 bytes");
}

TEST(DeskFileMistake, AnUnknownKindOfReplyFault) {
    EXPECT_EQ(
        mistakeIn(deskWithPersonality(R"("replyFaults": [{"kind": "cut"}, {"kind": "sharp"}])")),
        "x.json: displays[0].monitor.personality.replyFaults[1].kind: \"sharp\" is not one of wrongChecksum, "
        "previousCode, lostFirstBytes, doubledSource, doubledLength, lengthNine, cut, echo, nullMessage, "
        "rotatedNulls, constantBytes, lastValue");
}

TEST(DeskFileMistake, AReplyFaultWithoutAKind) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("replyFaults": [{}])")),
              "x.json: displays[0].monitor.personality.replyFaults[0].kind: is missing");
}

TEST(DeskFileMistake, AReplyFaultBeyondTheReply) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("replyFaults": [{"kind": "cut", "bytes": 12}])")),
              "x.json: displays[0].monitor.personality.replyFaults[0].bytes: 12 is more than 11");
}

TEST(DeskFileMistake, AReplyFaultThatNamesACodeTwice) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("replyFaults": [{"kind": "cut", "codes": [16, "0x10"]}])")),
              "x.json: displays[0].monitor.personality.replyFaults[0].codes[1]: is there already");
}

TEST(DeskFileMistake, AnUnknownKindOfFragmentFault) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("fragmentFaults": [{"kind": "cut"}])")),
              "x.json: displays[0].monitor.personality.fragmentFaults[0].kind: \"cut\" is not one of "
              "wrongChecksum, "
              "damagedHeader, wrongOffset, nullMessage");
}

TEST(DeskFileMistake, AFragmentFaultWithoutAKind) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("fragmentFaults": [{"when": true}])")),
              "x.json: displays[0].monitor.personality.fragmentFaults[0].kind: is missing");
}

TEST(DeskFileMistake, AnUnknownUnsupportedReply) {
    EXPECT_EQ(
        mistakeIn(deskWithPersonality(R"("unsupported": "no")")),
        "x.json: displays[0].monitor.personality.unsupported: \"no\" is not one of resultCode, nullMessage, "
        "lastValue, zeros, nak");
}

TEST(DeskFileMistake, AnOccurrenceThatIsNone) {
    EXPECT_EQ(
        mistakeIn(deskWithPersonality(R"("nak": "often")")),
        "x.json: displays[0].monitor.personality.nak: must be true, false, a probability, {\"every\": N} or "
        "{\"first\": N}, not a text");
}

TEST(DeskFileMistake, AProbabilityAboveOne) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("nak": 50)")),
              "x.json: displays[0].monitor.personality.nak: 50 is more than 1");
}

TEST(DeskFileMistake, AnOccurrenceOfEveryNone) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("nak": {"every": 0})")),
              "x.json: displays[0].monitor.personality.nak.every: 0 is less than 1");
}

TEST(DeskFileMistake, AnOccurrenceOfTheFirstNone) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("nak": {"first": 0})")),
              "x.json: displays[0].monitor.personality.nak.first: 0 is less than 1");
}

TEST(DeskFileMistake, ASpanWithoutALength) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("nakDuring": [{"fromMs": 1}])")),
              "x.json: displays[0].monitor.personality.nakDuring[0].lengthMs: is missing");
}

TEST(DeskFileMistake, ASpanWithoutAStart) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("nakDuring": [{"lengthMs": 1}])")),
              "x.json: displays[0].monitor.personality.nakDuring[0].fromMs: is missing");
}

TEST(DeskFileMistake, AMonitorThatNeedsNoWrites) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("writesNeeded": 0)")),
              "x.json: displays[0].monitor.personality.writesNeeded: 0 is less than 1");
}

TEST(DeskFileMistake, AFragmentWithoutBytes) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("fragmentSizeBytes": 0)")),
              "x.json: displays[0].monitor.personality.fragmentSizeBytes: 0 is less than 1");
}

TEST(DeskFileMistake, AFragmentLongerThanAllowed) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("fragmentSizeBytes": 33)")),
              "x.json: displays[0].monitor.personality.fragmentSizeBytes: 33 is more than 32");
}

TEST(DeskFileMistake, AReadingThatIsNamedByNoInput) {
    EXPECT_EQ(mistakeIn(deskWithPersonality(R"("inputReadings": {"HDMI 1": 1})")),
              "x.json: displays[0].monitor.personality.inputReadings[\"HDMI 1\"]: must be named by an input "
              "value like "
              "0x0F");
}

TEST(DeskFileMistake, AnInputThatIsReadInTwoWays) {
    EXPECT_EQ(
        mistakeIn(deskWithPersonality(R"("inputReadings": {"0x0F": 1, "0xF": 2})")),
        "x.json: displays[0].monitor.personality.inputReadings.0xF: names the same input as another key");
}

TEST(DeskFileMistake, ARegistryEntryOfNoKind) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"name": "X"}])")),
              "x.json: registry[0]: must have one of framebuffer, proxy and entry");
}

TEST(DeskFileMistake, ARegistryEntryOfTwoKinds) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"proxy": 2, "framebuffer": 2}])")),
              "x.json: registry[0]: must have one of framebuffer, proxy and entry");
}

TEST(DeskFileMistake, ARegistryEntryOfAnUnknownDisplay) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"framebuffer": 2}, {"proxy": 9}])")),
              "x.json: registry[1].proxy: there is no display 9");
}

TEST(DeskFileMistake, AFramebufferOfAnUnknownDisplay) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"framebuffer": 9}])")),
              "x.json: registry[0].framebuffer: there is no display 9");
}

TEST(DeskFileMistake, ARegistryEntryWithTwoNames) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"entry": "X", "name": "Y"}])")),
              "x.json: registry[0].name: is already given by entry");
}

TEST(DeskFileMistake, AnUnrelatedEntryThatLeavesSomethingOut) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"entry": "X", "without": ["Location"]}])")),
              "x.json: registry[0].without: has nothing to leave out");
}

TEST(DeskFileMistake, APropertyLeftOutThatIsNotThere) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"proxy": 2, "without": ["EDID UUID"]}])")),
              "x.json: registry[0].without: \"EDID UUID\" is not a property of this entry");
}

TEST(DeskFileMistake, PropertiesThatAreNoObject) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "registry": [{"proxy": 2, "properties": []}])")),
              "x.json: registry[0].properties: must be an object, not a list");
}

TEST(DeskFileMistake, OnlyTheFirstOneIsTold) {
    EXPECT_EQ(mistakeIn(R"({"title": 1, "displays": 2})"), "x.json: title: must be a text, not 1");
}

// Files.

std::string lineOf(const std::filesystem::path& path) {
    const DeskFileResult result = DeskFile::readFile(path);
    const auto* error = std::get_if<DeskFileError>(&result);
    return error == nullptr ? "" : error->line();
}

class DeskFileOnDisk : public testing::Test {
  protected:
    DeskFileOnDisk()
        : folder_(std::filesystem::temp_directory_path() /
                  ("vantrel-desk-" + std::to_string(getpid()) + "-" +
                   testing::UnitTest::GetInstance()->current_test_info()->name())) {
        std::filesystem::create_directories(folder_);
    }
    ~DeskFileOnDisk() override { std::filesystem::remove_all(folder_); }

    std::filesystem::path write(const std::string& name, const std::string& text) {
        std::ofstream(folder_ / name, std::ios::binary) << text;
        return folder_ / name;
    }

    std::filesystem::path folder_;
};

TEST_F(DeskFileOnDisk, IsRead) {
    const DeskFileResult result = DeskFile::readFile(write("d.json", deskWith("")));
    ASSERT_TRUE(std::holds_alternative<Desk>(result));
    EXPECT_EQ(std::get<Desk>(result).title, "T");
}

TEST_F(DeskFileOnDisk, IsNamedInItsMistake) {
    const auto path = write("d.json", "{}");
    EXPECT_EQ(lineOf(path), path.string() + ": title: is missing");
}

TEST_F(DeskFileOnDisk, StaysOnOneLineWhateverItsName) {
    EXPECT_EQ(lineOf(write("a\nb\x7F.json", "[]")),
              (folder_ / "a?b?.json").string() + ": must be an object, not a list");
}

TEST_F(DeskFileOnDisk, MayBeMissing) {
    EXPECT_EQ(lineOf(folder_ / "d.json"), (folder_ / "d.json").string() + ": No such file or directory");
}

TEST_F(DeskFileOnDisk, MayBeADirectory) { EXPECT_EQ(lineOf(folder_), folder_.string() + ": Is a directory"); }

TEST_F(DeskFileOnDisk, MayBeBelowAFile) {
    const auto path = write("d.json", "{}") / "e.json";
    EXPECT_EQ(lineOf(path), path.string() + ": Not a directory");
}

TEST_F(DeskFileOnDisk, MayBeUnreadable) {
    if (geteuid() == 0) GTEST_SKIP() << "root may read any file";
    const auto path = write("d.json", deskWith(""));
    std::filesystem::permissions(path, std::filesystem::perms::none);
    EXPECT_EQ(lineOf(path), path.string() + ": Permission denied");
}

TEST_F(DeskFileOnDisk, MayBeAsLargeAsTheLimit) {
    std::string text = deskWith("");
    text.resize(DeskFile::maximumBytes, ' ');
    EXPECT_EQ(lineOf(write("d.json", text)), "");
}

TEST_F(DeskFileOnDisk, MayBeTooLarge) {
    std::string text = deskWith("");
    text.resize(DeskFile::maximumBytes + 1, ' ');
    const auto path = write("d.json", text);
    EXPECT_EQ(lineOf(path), path.string() + ": is larger than 4194304 bytes");
}

TEST_F(DeskFileOnDisk, MayHaveNoEnd) {
    if (!std::filesystem::exists("/dev/zero")) GTEST_SKIP() << "this system has no endless file";
    EXPECT_EQ(lineOf("/dev/zero"), "/dev/zero: is larger than 4194304 bytes");
}

}  // namespace
}  // namespace vantrel::simulated
