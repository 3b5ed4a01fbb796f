#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/DeskFile.h"
#include "simulated/DeskFileText.h"

namespace vantrel::simulated {
namespace {

using testing::ElementsAre;
using testing::Pair;
using testing::SizeIs;

DisplayPlan onlyDisplay(const std::string& text) {
    Desk desk = readDeskText(text);
    EXPECT_THAT(desk.displays, SizeIs(1)) << desk.title;
    return desk.displays.empty() ? DisplayPlan{} : desk.displays.front();
}

MonitorPlan monitorWith(const std::string& fields) {
    return onlyDisplay(deskWithMonitor(fields)).monitor.value_or(MonitorPlan{});
}

TEST(DeskFile, ReadsTheDesk) {
    const Desk desk = readDeskText(
        R"({"title": "A", "description": "B", "seed": "0xFFFFFFFFFFFFFFFF", "displays": [],
            "missingSymbols": ["IOAVServiceReadI2C", "CGSConfigureDisplayEnabled"]})");
    EXPECT_EQ(desk.title, "A");
    EXPECT_EQ(desk.description, "B");
    EXPECT_EQ(desk.seed, 0xFFFFFFFFFFFFFFFFU);
    EXPECT_THAT(desk.displays, SizeIs(0));
    EXPECT_THAT(desk.missingSymbols, ElementsAre("IOAVServiceReadI2C", "CGSConfigureDisplayEnabled"));
}

TEST(DeskFile, GivesADeskThatSaysLittleItsDefaults) {
    const Desk desk = readDeskText(R"({"title": "A", "displays": []})");
    EXPECT_EQ(desk.description, "");
    EXPECT_EQ(desk.seed, 1U);
    EXPECT_THAT(desk.missingSymbols, SizeIs(0));
}

TEST(DeskFile, ReadsADisplay) {
    const DisplayPlan display = onlyDisplay(
        R"({"title": "T", "displays": [{"id": "0xFFFFFFFF", "name": "M", "isBuiltIn": true, "vendor": "0x0472",
            "product": 1922, "serial": 4294967295, "edidUUID": "U", "width": 1, "height": 65535,
            "transferTableCapacity": 0, "brightness": 0.25, "isConnected": false}]})");
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
    EXPECT_FALSE(display.monitor);
}

TEST(DeskFile, GivesADisplayThatSaysLittleItsDefaults) {
    const DisplayPlan display = onlyDisplay(deskWith(""));
    EXPECT_FALSE(display.isBuiltIn);
    EXPECT_EQ(display.serial, 0U);
    EXPECT_EQ(display.edidUUID, std::nullopt);
    EXPECT_EQ(display.width, 1920U);
    EXPECT_EQ(display.height, 1080U);
    EXPECT_EQ(display.transferTableCapacity, 256U);
    EXPECT_EQ(display.brightness, std::nullopt);
    EXPECT_TRUE(display.isConnected);
    EXPECT_FALSE(display.monitor);
}

TEST(DeskFile, KeepsTheDisplaysInTheirOrder) {
    const Desk desk = readDeskText(R"({"title": "T", "displays": [
        {"id": 9, "name": "A", "vendor": 1, "product": 1}, {"id": 3, "name": "B", "vendor": 1, "product": 1}]})");
    ASSERT_THAT(desk.displays, SizeIs(2)) << desk.title;
    EXPECT_EQ(desk.displays[0].id, 9U);
    EXPECT_EQ(desk.displays[1].id, 3U);
}

TEST(DeskFile, TakesNullForADisplayWithoutAMonitor) {
    EXPECT_FALSE(onlyDisplay(deskWith(R"(, "monitor": null)")).monitor);
}

TEST(DeskFile, GivesAMonitorThatSaysNothingItsDefaults) {
    EXPECT_EQ(onlyDisplay(deskWith(R"(, "monitor": {})")).monitor, MonitorPlan{});
}

TEST(DeskFile, ReadsFeatures) {
    const auto features = monitorWith(R"("features": {
        "0x10": {"current": 50, "maximum": "0x64"},
        "0x0a": {"type": 1, "current": 65535, "maximum": 0},
        "0xFF": {"unsupported": true}})")
                              .features;
    EXPECT_THAT(features, ElementsAre(Pair(0x0A, FeaturePlan{.type = 1, .current = 65535, .maximum = 0}),
                                      Pair(0x10, FeaturePlan{.current = 50, .maximum = 100}),
                                      Pair(0xFF, FeaturePlan{.unsupported = true})));
}

TEST(DeskFile, TakesVCPCode60AsAFeatureWhenThereAreNoInputs) {
    const auto features = monitorWith(R"("features": {"0x60": {"current": 3, "maximum": 4}})").features;
    EXPECT_THAT(features, ElementsAre(Pair(0x60, FeaturePlan{.current = 3, .maximum = 4})));
}

TEST(DeskFile, ReadsInputs) {
    const auto inputs =
        monitorWith(R"("inputs": {"available": ["0x0F", 17, "0x0F1B"], "computer": 15, "shown": "0x0f1b"})")
            .inputs;
    EXPECT_EQ(inputs, (InputPlan{.computer = 0x0F, .shown = 0x0F1B, .available = {0x0F, 0x11, 0x0F1B}}));
}

TEST(DeskFile, PutsTheComputerOnTheFirstInputAndShowsIt) {
    const auto inputs = monitorWith(R"("inputs": {"available": ["0x12", "0x11"]})").inputs;
    EXPECT_EQ(inputs, (InputPlan{.computer = 0x12, .shown = 0x12, .available = {0x12, 0x11}}));
}

TEST(DeskFile, ShowsTheComputersInput) {
    const auto inputs =
        monitorWith(R"("inputs": {"available": ["0x12", "0x11"], "computer": "0x11"})").inputs;
    EXPECT_EQ(inputs, (InputPlan{.computer = 0x11, .shown = 0x11, .available = {0x12, 0x11}}));
}

TEST(DeskFile, GivesInputsThatSayNothingTheirDefaults) {
    EXPECT_EQ(monitorWith(R"("inputs": {})").inputs, InputPlan{});
}

TEST(DeskFile, ReadsCapabilitiesAsText) {
    EXPECT_EQ(monitorWith(R"j("capabilities": "(vcp(10))")j").capabilities, "(vcp(10))");
}

TEST(DeskFile, ReadsEmptyCapabilities) { EXPECT_EQ(monitorWith(R"("capabilities": "")").capabilities, ""); }

TEST(DeskFile, ReadsCapabilitiesWithANUL) {
    EXPECT_EQ(monitorWith(R"j("capabilities": "(\u0000)")j").capabilities, std::string("(\0)", 3));
}

TEST(DeskFile, ReadsCapabilitiesAsBytes) {
    EXPECT_EQ(monitorWith(R"("capabilities": {"hex": "28 70fF  00 "})").capabilities,
              std::string("(p\xFF\0", 4));
}

TEST(DeskFile, TakesNullForCapabilitiesThatAreNeverAnswered) {
    EXPECT_EQ(monitorWith(R"("capabilities": null)").capabilities, std::nullopt);
}

TEST(DeskFile, TakesCapabilitiesAsLongAsAnOffsetReaches) {
    const std::string longest(65535, 'x');
    EXPECT_EQ(monitorWith(R"("capabilities": ")" + longest + R"(")").capabilities, longest);
}

TEST(DeskFile, AcceptsAByteOrderMark) { EXPECT_EQ(mistakeIn("\xEF\xBB\xBF" + deskWith("")), ""); }

TEST(DeskFile, AcceptsAnyOrderOfTheFields) {
    EXPECT_EQ(mistakeIn(R"({"registry": [{"proxy": 5}], "displays": [
        {"product": 1, "vendor": 1, "name": "", "id": 5}], "title": ""})"),
              "");
}

}  // namespace
}  // namespace vantrel::simulated
