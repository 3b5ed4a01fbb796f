#include <gtest/gtest.h>

#include "platform/simulated/JSONPlace.h"
#include "simulated/DeskFileText.h"

namespace vantrel::simulated {
namespace {

TEST(JSONPlace, RefusesATextThatIsNone) {
    EXPECT_EQ(mistakeIn(R"({"title": 1, "displays": []})"), "x.json: title: must be a text, not 1");
}

TEST(JSONPlace, RefusesAListThatIsNone) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": {}})"),
              "x.json: displays: must be a list, not an object");
}

TEST(JSONPlace, RefusesAnObjectThatIsNone) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": ["A"]})"),
              "x.json: displays[0]: must be an object, not a text");
}

TEST(JSONPlace, RefusesAFlagThatIsNone) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "isConnected": 1)")),
              "x.json: displays[0].isConnected: must be true or false, not 1");
}

TEST(JSONPlace, RefusesANumberThatIsNone) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "brightness": "0.5")")),
              "x.json: displays[0].brightness: must be a number, not a text");
}

TEST(JSONPlace, RefusesACodeThatIsNone) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": null)")),
              "x.json: displays[0].serial: must be a whole number or a text like \"0x1A\", not null");
}

TEST(JSONPlace, RefusesACountInHexadecimal) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "width": "0x10")")),
              "x.json: displays[0].width: must be a whole number, not a text");
}

TEST(JSONPlace, RefusesAFraction) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": 1.5)")),
              "x.json: displays[0].serial: must be a whole number, not 1.5");
}

TEST(JSONPlace, RefusesAHexadecimalTextWithOtherLetters) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": "0x04G2")")),
              "x.json: displays[0].serial: \"0x04G2\" is not a hexadecimal number like \"0x1A\"");
}

TEST(JSONPlace, RefusesAHexadecimalTextWithoutDigits) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": "0x")")),
              "x.json: displays[0].serial: \"0x\" is not a hexadecimal number like \"0x1A\"");
}

TEST(JSONPlace, RefusesAHexadecimalTextWithASign) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": "0x-1")")),
              "x.json: displays[0].serial: \"0x-1\" is not a hexadecimal number like \"0x1A\"");
}

TEST(JSONPlace, RefusesAHexadecimalTextLongerThanAnyNumber) {
    EXPECT_EQ(
        mistakeIn(deskWith(R"(, "serial": "0x00000000000000001")")),
        "x.json: displays[0].serial: \"0x00000000000000001\" is not a hexadecimal number like \"0x1A\"");
}

TEST(JSONPlace, RefusesADecimalNumberInAText) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": "17")")),
              "x.json: displays[0].serial: \"17\" is not a hexadecimal number like \"0x1A\"");
}

TEST(JSONPlace, RefusesAHexadecimalValueAboveItsRange) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("features": {"0x10": {"current": "0x10000", "maximum": 1}})")),
              "x.json: displays[0].monitor.features.0x10.current: 0x10000 is more than 65535");
}

TEST(JSONPlace, RefusesAnIntegerThatOnlyAFractionCanHold) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": 99999999999999999999)")),
              "x.json: displays[0].serial: 1e+20 is more than 4294967295");
}

TEST(JSONPlace, RefusesANegativeCode) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "serial": -1)")), "x.json: displays[0].serial: -1 is less than 0");
}

TEST(JSONPlace, RefusesCapabilitiesOfAnotherType) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("capabilities": 1)")),
              "x.json: displays[0].monitor.capabilities: must be a text or {\"hex\": \"28 70 ...\"}, not 1");
}

TEST(JSONPlace, RefusesCapabilitiesWithHalfAByte) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("capabilities": {"hex": "28 7"})")),
              "x.json: displays[0].monitor.capabilities.hex: \"28 7\" is not pairs of hexadecimal digits");
}

TEST(JSONPlace, RefusesCapabilitiesWithOtherLetters) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("capabilities": {"hex": "0x28"})")),
              "x.json: displays[0].monitor.capabilities.hex: \"0x28\" is not pairs of hexadecimal digits");
}

TEST(JSONPlace, RefusesCapabilitiesWithAnotherField) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("capabilities": {"hex": "28", "text": "("})")),
              "x.json: displays[0].monitor.capabilities.text: is not a known field");
}

TEST(JSONPlace, TellsTheFirstMistakeOnly) {
    EXPECT_EQ(mistakeIn(R"({"title": 1, "displays": 2})"), "x.json: title: must be a text, not 1");
}

}  // namespace
}  // namespace vantrel::simulated
