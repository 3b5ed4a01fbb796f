// What happens to monitors, cables and the computer in a story reaches the
// simulated desk.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/StoryText.h"

namespace vantrel::app {
namespace {

using testing::HasSubstr;

TEST(StoryWorld, PressesTheMonitorsButton) {
    const std::string steps = R"({"atMs": 8000, "do": "pressInputButton", "display": 2, "input": "0x11"})";
    EXPECT_THAT(endOf(playedSteps(steps), "Halden HX27"),
                HasSubstr("  on the desk: online, shows 0x11 HDMI 1"));
}

TEST(StoryWorld, ChangesAValueInTheMonitorsMenu) {
    const std::string steps = R"({"atMs": 8000, "do": "adjust", "display": 2, "code": "0x10", "value": 7})";
    EXPECT_THAT(endOf(playedSteps(steps), "Halden HX27"), HasSubstr("; the monitor holds 7\n"));
}

TEST(StoryWorld, SwitchesAMonitorOffAndOn) {
    const std::string off = R"({"atMs": 8000, "do": "switchOff", "display": 2},
                               {"atMs": 9000, "do": "set", "display": 2, "code": "0x10", "value": 7})";
    EXPECT_THAT(endOf(playedSteps(off), "Halden HX27"),
                HasSubstr("0x10 Brightness: 7 of 100; the monitor holds 60\n"));
    const std::string on = R"({"atMs": 7000, "do": "switchOff", "display": 2},
                              {"atMs": 8000, "do": "switchOn", "display": 2},
                              {"atMs": 9000, "do": "set", "display": 2, "code": "0x10", "value": 7})";
    EXPECT_THAT(endOf(playedSteps(on), "Halden HX27"), HasSubstr("0x10 Brightness: 7 of 100\n"));
}

TEST(StoryWorld, HealsAMonitor) {
    const std::string steps = R"({"atMs": 8000, "do": "becomeHealthy", "display": 4},
                                 {"atMs": 9000, "do": "disableOutput", "display": 4, "input": "0x12"})";
    EXPECT_THAT(endOf(playedSteps(steps, "inputs"), "Norvik N27 Mule"), HasSubstr("shows 0x12 HDMI 2"));
}

TEST(StoryWorld, UnplugsAndPlugs) {
    const std::string unplugged = R"({"atMs": 8000, "do": "unplug", "display": 2})";
    EXPECT_THAT(endOf(playedSteps(unplugged), "Halden HX27"),
                HasSubstr("  not shown\n  on the desk: unplugged, "));
    const std::string plugged = unplugged + R"(, {"atMs": 9000, "do": "plug", "display": 2})";
    EXPECT_THAT(endOf(playedSteps(plugged), "Halden HX27"), HasSubstr("  on the desk: online, "));
}

TEST(StoryWorld, LetsNothingThroughWhileTheComputerSleeps) {
    const std::string steps = R"({"atMs": 8000, "do": "sleep"},
                                 {"atMs": 9000, "do": "set", "display": 2, "code": "0x10", "value": 7})";
    EXPECT_THAT(endOf(playedSteps(steps), "Halden HX27"), HasSubstr("; the monitor holds 60\n"));
}

TEST(StoryWorld, WakesTheComputer) {
    EXPECT_THAT(playedSteps(R"({"atMs": 8000, "do": "sleep"}, {"atMs": 9000, "do": "wake"})"),
                HasSubstr("\n      9.600 s  default  display  Refresh: online 1,2,3,4,5"));
}

TEST(StoryWorld, ClosesAndOpensTheLid) {
    const std::string closed = R"({"atMs": 8000, "do": "closeLid"})";
    EXPECT_THAT(endOf(playedSteps(closed), "Built-in"),
                HasSubstr("  not shown\n  on the desk: lid closed\n"));
    const std::string open = closed + R"(, {"atMs": 9000, "do": "openLid"})";
    EXPECT_THAT(endOf(playedSteps(open), "Built-in"),
                HasSubstr("  brightness: 0.75\n  on the desk: online\n"));
}

TEST(StoryWorld, AnnouncesAReconfigurationWithItsFlags) {
    const Story story =
        readStoryText(storyWith(R"({"atMs": 8000, "do": "reconfigure", "display": 2, "flags": "0x1000"})"));
    EXPECT_THAT(played(story, "default", platform::LogLevel::info),
                HasSubstr("\n      8.000 s  info     display  Reconfiguration: display 2, flags 0x1000\n"));
}

TEST(StoryWorld, RefusesAConfigurationUntilItDoesNot) {
    const std::string refused = R"({"atMs": 8000, "do": "refuse", "refusal": "enable"},
                                   {"atMs": 9000, "do": "disableOutput", "display": 2})";
    EXPECT_THAT(endOf(playedSteps(refused)), HasSubstr("Turned off: none\n"));
    const std::string granted = refused + R"(, {"atMs": 10000, "do": "refuse", "refusal": "nothing"},
                                               {"atMs": 11000, "do": "disableOutput", "display": 2})";
    EXPECT_THAT(endOf(playedSteps(granted)), HasSubstr("Turned off: Halden HX27\n"));
}

}  // namespace
}  // namespace vantrel::app
