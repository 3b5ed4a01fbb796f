#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/MonitorReader.h"
#include "simulated/DeskFileText.h"

namespace vantrel::simulated {
namespace {

using testing::ElementsAre;
using testing::Pair;

MonitorPlan monitorWith(const std::string& fields) {
    Desk desk = readDeskText(deskWithMonitor(fields));
    if (desk.displays.empty() || !desk.displays.front().monitor) {
        ADD_FAILURE() << desk.title;
        return {};
    }
    return *std::move(desk.displays.front().monitor);
}

TEST(MonitorReader, GivesAMonitorThatSaysNothingItsDefaults) { EXPECT_EQ(monitorWith(""), MonitorPlan{}); }

TEST(MonitorReader, ReadsFeatures) {
    const auto features = monitorWith(R"("features": {
        "0x10": {"current": 50, "maximum": "0x64"},
        "0x0a": {"type": 1, "current": 65535, "maximum": 0},
        "0xFF": {"unsupported": true}})")
                              .features;
    EXPECT_THAT(features, ElementsAre(Pair(0x0A, FeaturePlan{.type = 1, .current = 65535, .maximum = 0}),
                                      Pair(0x10, FeaturePlan{.current = 50, .maximum = 100}),
                                      Pair(0xFF, FeaturePlan{.unsupported = true})));
}

TEST(MonitorReader, TakesVCPCode60AsAFeatureWhenThereAreNoInputs) {
    const auto features = monitorWith(R"("features": {"0x60": {"current": 3, "maximum": 4}})").features;
    EXPECT_THAT(features, ElementsAre(Pair(0x60, FeaturePlan{.current = 3, .maximum = 4})));
}

TEST(MonitorReader, ReadsInputs) {
    const auto inputs =
        monitorWith(R"("inputs": {"available": ["0x0F", 17, "0x0F1B"], "computer": 15, "shown": "0x0f1b"})")
            .inputs;
    EXPECT_EQ(inputs, (InputPlan{.computer = 0x0F, .shown = 0x0F1B, .available = {0x0F, 0x11, 0x0F1B}}));
}

TEST(MonitorReader, PutsTheComputerOnTheFirstInputAndShowsIt) {
    const auto inputs = monitorWith(R"("inputs": {"available": ["0x12", "0x11"]})").inputs;
    EXPECT_EQ(inputs, (InputPlan{.computer = 0x12, .shown = 0x12, .available = {0x12, 0x11}}));
}

TEST(MonitorReader, ShowsTheComputersInput) {
    const auto inputs =
        monitorWith(R"("inputs": {"available": ["0x12", "0x11"], "computer": "0x11"})").inputs;
    EXPECT_EQ(inputs, (InputPlan{.computer = 0x11, .shown = 0x11, .available = {0x12, 0x11}}));
}

TEST(MonitorReader, GivesInputsThatSayNothingTheirDefaults) {
    EXPECT_EQ(monitorWith(R"("inputs": {})").inputs, InputPlan{});
}

TEST(MonitorReader, ReadsCapabilitiesAsText) {
    EXPECT_EQ(monitorWith(R"j("capabilities": "(vcp(10))")j").capabilities, "(vcp(10))");
}

TEST(MonitorReader, ReadsEmptyCapabilities) {
    EXPECT_EQ(monitorWith(R"("capabilities": "")").capabilities, "");
}

TEST(MonitorReader, ReadsCapabilitiesWithANUL) {
    EXPECT_EQ(monitorWith(R"j("capabilities": "(\u0000)")j").capabilities, std::string("(\0)", 3));
}

TEST(MonitorReader, ReadsCapabilitiesAsBytes) {
    EXPECT_EQ(monitorWith(R"("capabilities": {"hex": "28 70fF  00 "})").capabilities,
              std::string("(p\xFF\0", 4));
}

TEST(MonitorReader, TakesNullForCapabilitiesThatAreNeverAnswered) {
    EXPECT_EQ(monitorWith(R"("capabilities": null)").capabilities, std::nullopt);
}

TEST(MonitorReader, TakesCapabilitiesAsLongAsAnOffsetReaches) {
    const std::string longest(65535, 'x');
    EXPECT_EQ(monitorWith(R"("capabilities": ")" + longest + R"(")").capabilities, longest);
}

TEST(MonitorReader, RefusesAFeaturesMaximumAboveItsRange) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("features": {"0x10": {"current": 1, "maximum": 70000}})")),
              "x.json: displays[0].monitor.features.0x10.maximum: 70000 is more than 65535");
}

TEST(MonitorReader, RefusesAFeatureWithoutACurrentValue) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("features": {"0x10": {"maximum": 1}})")),
              "x.json: displays[0].monitor.features.0x10.current: is missing");
}

TEST(MonitorReader, RefusesAFeatureWithoutAMaximum) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("features": {"0x10": {"current": 1}})")),
              "x.json: displays[0].monitor.features.0x10.maximum: is missing");
}

TEST(MonitorReader, RefusesAFeatureThatIsNamedByNoVCPCode) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("features": {"0x100": {"current": 1, "maximum": 1}})")),
              "x.json: displays[0].monitor.features.0x100: must be named by a VCP code like 0x10");
}

TEST(MonitorReader, RefusesACodeThatIsNamedTwice) {
    EXPECT_EQ(
        mistakeIn(deskWithMonitor(
            R"("features": {"0x1A": {"current": 1, "maximum": 1}, "0x1a": {"current": 1, "maximum": 1}})")),
        "x.json: displays[0].monitor.features.0x1a: names the same code as another key");
}

TEST(MonitorReader, RefusesAFeatureThatComesFromTheInputs) {
    EXPECT_EQ(
        mistakeIn(deskWithMonitor(R"("inputs": {}, "features": {"0x60": {"current": 1, "maximum": 1}})")),
        "x.json: displays[0].monitor.features: 0x60 comes from inputs");
}

TEST(MonitorReader, RefusesAShownInputThatIsNotThere) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("inputs": {"available": ["0x0F"], "shown": "0x11"})")),
              "x.json: displays[0].monitor.inputs.shown: 0x11 is not among the available inputs");
}

TEST(MonitorReader, RefusesAComputerOnAnInputThatIsNotThere) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("inputs": {"available": ["0x0F"], "computer": 3})")),
              "x.json: displays[0].monitor.inputs.computer: 0x03 is not among the available inputs");
}

TEST(MonitorReader, RefusesInputsWithoutOne) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("inputs": {"available": []})")),
              "x.json: displays[0].monitor.inputs.available: must not be empty");
}

TEST(MonitorReader, RefusesAnInputThatIsListedTwice) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("inputs": {"available": [15, "0x0F"]})")),
              "x.json: displays[0].monitor.inputs.available[1]: is there already");
}

TEST(MonitorReader, RefusesCapabilitiesBeyondAnyOffset) {
    EXPECT_EQ(mistakeIn(deskWithMonitor(R"("capabilities": ")" + std::string(65536, 'x') + R"(")")),
              "x.json: displays[0].monitor.capabilities: is longer than 65535 bytes");
}

}  // namespace
}  // namespace vantrel::simulated
