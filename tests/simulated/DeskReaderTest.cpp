#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/DeskReader.h"
#include "simulated/DeskFileText.h"

namespace vantrel::simulated {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

DisplayPlan onlyDisplay(const std::string& text) {
    Desk desk = readDeskText(text);
    EXPECT_THAT(desk.displays, SizeIs(1)) << desk.title;
    return desk.displays.empty() ? DisplayPlan{} : desk.displays.front();
}

TEST(DeskReader, ReadsTheDesk) {
    const Desk desk = readDeskText(
        R"({"title": "A", "description": "B", "seed": "0xFFFFFFFFFFFFFFFF", "displays": [],
            "missingSymbols": ["IOAVServiceReadI2C", "CGSConfigureDisplayEnabled"],
            "obstacles": ["No cable.", "%@"]})");
    EXPECT_EQ(desk.title, "A");
    EXPECT_EQ(desk.description, "B");
    EXPECT_EQ(desk.seed, 0xFFFFFFFFFFFFFFFFU);
    EXPECT_THAT(desk.displays, SizeIs(0));
    EXPECT_THAT(desk.missingSymbols, ElementsAre("IOAVServiceReadI2C", "CGSConfigureDisplayEnabled"));
    EXPECT_THAT(desk.obstacles, ElementsAre("No cable.", "%@"));
}

TEST(DeskReader, GivesADeskThatSaysLittleItsDefaults) {
    const Desk desk = readDeskText(R"({"title": "A", "displays": []})");
    EXPECT_EQ(desk.description, "");
    EXPECT_EQ(desk.seed, 1U);
    EXPECT_THAT(desk.missingSymbols, SizeIs(0));
    EXPECT_THAT(desk.obstacles, SizeIs(0));
}

TEST(DeskReader, ReadsADisplay) {
    const DisplayPlan display = onlyDisplay(
        R"({"title": "T", "displays": [{"id": "0xFFFFFFFF", "name": "M", "isBuiltIn": true, "vendor": "0x0472",
            "product": 1922, "serial": 4294967295, "edidUUID": "U", "width": 1, "height": 65535,
            "transferTableCapacity": 0, "brightness": 0.25, "isConnected": false, "isOn": false}]})");
    EXPECT_EQ(display.id, 0xFFFFFFFFU);
    EXPECT_EQ(display.name, "M");
    EXPECT_TRUE(display.isBuiltIn);
    EXPECT_EQ(display.vendor, 0x0472U);
    EXPECT_EQ(display.product, 0x0782U);
    EXPECT_EQ(display.serial, 0xFFFFFFFFU);
    EXPECT_EQ(display.edidUUID, "U");
    EXPECT_EQ(display.width, 1U);
    EXPECT_EQ(display.height, 65535U);
    EXPECT_EQ(display.transferTableCapacity, 0U);
    EXPECT_EQ(display.brightness, 0.25F);
    EXPECT_FALSE(display.isConnected);
    EXPECT_FALSE(display.isOn);
    EXPECT_FALSE(display.monitor);
}

TEST(DeskReader, GivesADisplayThatSaysLittleItsDefaults) {
    const DisplayPlan display = onlyDisplay(deskWith(""));
    EXPECT_FALSE(display.isBuiltIn);
    EXPECT_EQ(display.serial, 0U);
    EXPECT_EQ(display.edidUUID, std::nullopt);
    EXPECT_EQ(display.width, 1920U);
    EXPECT_EQ(display.height, 1080U);
    EXPECT_EQ(display.transferTableCapacity, 256U);
    EXPECT_EQ(display.brightness, std::nullopt);
    EXPECT_TRUE(display.isConnected);
    EXPECT_TRUE(display.isOn);
    EXPECT_FALSE(display.monitor);
}

TEST(DeskReader, KeepsTheDisplaysInTheirOrder) {
    const Desk desk = readDeskText(R"({"title": "T", "displays": [
        {"id": 9, "name": "A", "vendor": 1, "product": 1}, {"id": 3, "name": "B", "vendor": 1, "product": 1}]})");
    ASSERT_THAT(desk.displays, SizeIs(2)) << desk.title;
    EXPECT_EQ(desk.displays[0].id, 9U);
    EXPECT_EQ(desk.displays[1].id, 3U);
}

TEST(DeskReader, TakesNullForADisplayWithoutAMonitor) {
    EXPECT_FALSE(onlyDisplay(deskWith(R"(, "monitor": null)")).monitor);
}

TEST(DeskReader, AcceptsAnyOrderOfTheFields) {
    EXPECT_EQ(mistakeIn(R"({"registry": [{"proxy": 5}], "displays": [
        {"product": 1, "vendor": 1, "name": "", "id": 5}], "title": ""})"),
              "");
}

TEST(DeskReader, RefusesADeskThatIsNoObject) {
    EXPECT_EQ(mistakeIn("[]"), "x.json: must be an object, not a list");
}

TEST(DeskReader, RefusesNoTitle) { EXPECT_EQ(mistakeIn(R"({"displays": []})"), "x.json: title: is missing"); }

TEST(DeskReader, RefusesNoDisplays) {
    EXPECT_EQ(mistakeIn(R"({"title": "T"})"), "x.json: displays: is missing");
}

TEST(DeskReader, RefusesADisplayWithoutAnID) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [{"name": "A", "vendor": 1, "product": 1}]})"),
              "x.json: displays[0].id: is missing");
}

TEST(DeskReader, RefusesADisplayWithoutAName) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [{"id": 1, "vendor": 1, "product": 1}]})"),
              "x.json: displays[0].name: is missing");
}

TEST(DeskReader, RefusesADisplayWithoutAVendor) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [{"id": 1, "name": "A", "product": 1}]})"),
              "x.json: displays[0].vendor: is missing");
}

TEST(DeskReader, RefusesADisplayWithoutAProduct) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [{"id": 1, "name": "A", "vendor": 1}]})"),
              "x.json: displays[0].product: is missing");
}

TEST(DeskReader, RefusesAnUnknownFieldOfTheDesk) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [], "colour": 1})"),
              "x.json: colour: is not a known field");
}

TEST(DeskReader, RefusesABrightnessAboveOne) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "brightness": 1.01)")),
              "x.json: displays[0].brightness: 1.01 is more than 1");
}

TEST(DeskReader, RefusesAScreenWithoutPixels) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "height": 0)")), "x.json: displays[0].height: 0 is less than 1");
}

TEST(DeskReader, RefusesAHugeTransferTable) {
    EXPECT_EQ(mistakeIn(deskWith(R"(, "transferTableCapacity": 65537)")),
              "x.json: displays[0].transferTableCapacity: 65537 is more than 65536");
}

TEST(DeskReader, RefusesTheNullDisplaysID) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [{"id": 0, "name": "A", "vendor": 1, "product": 1}]})"),
              "x.json: displays[0].id: 0 is less than 1");
}

TEST(DeskReader, RefusesAnIDOfTwoDisplays) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [
        {"id": 16, "name": "A", "vendor": 1, "product": 1}, {"id": "0x10", "name": "B", "vendor": 1, "product": 1}]})"),
              "x.json: displays[1].id: is already the id of displays[0]");
}

std::string deskWithDisplays(int count) {
    std::string list;
    for (int id = 1; id <= count; ++id) {
        list += (id == 1 ? "" : ", ") + (R"({"id": )" + std::to_string(id)) +
                R"(, "name": "M", "vendor": 1, "product": 1})";
    }
    return R"({"title": "T", "displays": [)" + list + "]}";
}

TEST(DeskReader, AcceptsTheMostDisplays) {
    EXPECT_THAT(readDeskText(deskWithDisplays(256)).displays, SizeIs(256));
}

TEST(DeskReader, RefusesMoreDisplaysThanAnyComputerHas) {
    EXPECT_EQ(mistakeIn(deskWithDisplays(257)), "x.json: displays: has more than 256 displays");
}

TEST(DeskReader, RefusesTwoBuiltInDisplays) {
    EXPECT_EQ(mistakeIn(R"({"title": "T", "displays": [
        {"id": 1, "name": "A", "vendor": 1, "product": 1, "isBuiltIn": true},
        {"id": 2, "name": "B", "vendor": 1, "product": 1, "isBuiltIn": true}]})"),
              "x.json: displays[1].isBuiltIn: displays[0] is already the built-in display");
}

TEST(DeskReader, RefusesAnUnknownPrivateFunction) {
    EXPECT_EQ(mistakeIn(deskWith("", R"(, "missingSymbols": ["IOAVServiceReadI2C", "printf"])")),
              "x.json: missingSymbols[1]: \"printf\" is not the name of a private function");
}

}  // namespace
}  // namespace vantrel::simulated
