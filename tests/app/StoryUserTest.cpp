// What a person does in a story has the effect that the interface's controls have;
// what the interface does not offer is not done, and said.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/StoryText.h"

namespace vantrel::app {
namespace {

using testing::HasSubstr;
using testing::Not;

// Once the models have loaded.
std::string at8s(const std::string& fields) { return R"({"atMs": 8000, )" + fields + "}"; }

TEST(StoryUser, MovesASlider) {
    const std::string end =
        endOf(playedSteps(at8s(R"("do": "set", "display": 2, "code": "0x10", "value": 33)")), "Halden HX27");
    EXPECT_THAT(end, HasSubstr("0x10 Brightness: 33 of 100\n"));
}

TEST(StoryUser, MovesNoSliderThatTheMonitorDoesNotHave) {
    EXPECT_THAT(playedSteps(at8s(R"("do": "set", "display": 5, "code": "0x10", "value": 33)")),
                HasSubstr("\n!     8.000 s  Tessera T22 Panel has no control 0x10 for that\n"));
}

TEST(StoryUser, SetsNeitherAButtonNorAReading) {
    EXPECT_THAT(playedSteps(at8s(R"("do": "set", "display": 2, "code": "0x04", "value": 1)")),
                HasSubstr("\n!     8.000 s  Halden HX27 has no control 0x04 for that\n"));
    EXPECT_THAT(playedSteps(at8s(R"("do": "set", "display": 2, "code": "0xC0", "value": 1)")),
                HasSubstr("\n!     8.000 s  Halden HX27 has no control 0xC0 for that\n"));
}

TEST(StoryUser, PressesAButton) {
    const std::string steps = at8s(R"("do": "set", "display": 2, "code": "0x10", "value": 33)") + "," +
                              R"({"atMs": 9000, "do": "trigger", "display": 2, "code": "0x04"},
                                 {"atMs": 11000, "do": "openPopover"})";
    EXPECT_THAT(endOf(playedSteps(steps), "Halden HX27"), HasSubstr("0x10 Brightness: 60 of 100\n"));
}

TEST(StoryUser, PressesNothingThatIsNoButton) {
    EXPECT_THAT(playedSteps(at8s(R"("do": "trigger", "display": 2, "code": "0x10")")),
                HasSubstr("\n!     8.000 s  Halden HX27 has no control 0x10 for that\n"));
}

TEST(StoryUser, ReadsTheValuesAgainWhenThePopoverOpens) {
    const std::string changed = at8s(R"("do": "adjust", "display": 2, "code": "0x12", "value": 5)");
    EXPECT_THAT(endOf(playedSteps(changed), "Halden HX27"),
                HasSubstr("0x12 Contrast: 75 of 100; the monitor holds 5\n"));
    EXPECT_THAT(endOf(playedSteps(changed + R"(, {"atMs": 9000, "do": "openPopover"})"), "Halden HX27"),
                HasSubstr("0x12 Contrast: 5 of 100\n"));
}

TEST(StoryUser, SetsTheBuiltInPanel) {
    EXPECT_THAT(endOf(playedSteps(at8s(R"("do": "setBuiltInBrightness", "brightness": 0.4)")), "Built-in"),
                HasSubstr("  brightness: 0.40\n  on the desk: online\n  panel: 0.40"));
}

TEST(StoryUser, DoesNotSetAPanelBehindAClosedLid) {
    EXPECT_THAT(playedSteps(at8s(R"("do": "closeLid")") +
                            R"(, {"atMs": 9000, "do": "setBuiltInBrightness", "brightness": 0.4})"),
                HasSubstr("\n!     9.000 s  the program shows no built-in display\n"));
}

TEST(StoryUser, DoesNothingToADisplayThatTheProgramDoesNotShow) {
    EXPECT_THAT(playedSteps(at8s(R"("do": "unplug", "display": 2)") +
                            R"(, {"atMs": 9000, "do": "returnToMac", "display": 2})"),
                HasSubstr("\n!     9.000 s  the program shows no display 2\n"));
}

TEST(StoryUser, TurnsNothingOnThatIsNotOff) {
    EXPECT_THAT(playedSteps(at8s(R"("do": "enableOutput", "display": 2)")),
                HasSubstr("\n!     8.000 s  display 2 is not among those turned off\n"));
}

TEST(StoryUser, ForgetsAMonitorThatIsOff) {
    const std::string off = at8s(R"("do": "disableOutput", "display": 2)");
    EXPECT_THAT(endOf(playedSteps(off)), HasSubstr("Turned off: Halden HX27\n"));
    const std::string output = playedSteps(off + R"(, {"atMs": 9000, "do": "forget", "display": 2},
                                                      {"atMs": 10000, "do": "openPopover"})");
    EXPECT_THAT(endOf(output), HasSubstr("Turned off: none\n"));
    EXPECT_THAT(endOf(output, "Halden HX27"),
                HasSubstr("  not shown\n  on the desk: no picture from the computer"));
}

TEST(StoryUser, SetsAndForgetsTheMonitorsInputs) {
    const std::string set = at8s(R"("do": "setMacInput", "display": 2, "input": "0x11")") +
                            R"(, {"atMs": 9000, "do": "setFocusInput", "display": 2, "input": "0x0F"})";
    EXPECT_THAT(endOf(playedSteps(set), "Halden HX27"),
                HasSubstr("  Mac input: 0x11 HDMI 1\n  focus input: 0x0F DisplayPort 1\n"));
    const std::string forgotten = set + R"(, {"atMs": 9100, "do": "setMacInput", "display": 2},
                                             {"atMs": 9100, "do": "setFocusInput", "display": 2})";
    EXPECT_THAT(endOf(playedSteps(forgotten), "Halden HX27"),
                HasSubstr("  Mac input: unknown\n  focus input: none\n"));
}

TEST(StoryUser, DimsAMonitorThatIsDimmedBySoftware) {
    const std::string end = endOf(
        playedSteps(at8s(R"("do": "controlMode", "display": 2, "mode": "software")") +
                    R"(, {"atMs": 8000, "do": "dimmer", "display": 2, "brightness": 0.5, "contrast": 0.25})"),
        "Halden HX27");
    EXPECT_THAT(end, HasSubstr("  control: software\n"));
    EXPECT_THAT(end, HasSubstr("  dimmer: on, brightness 0.50, contrast 0.25\n"));
    EXPECT_THAT(end, HasSubstr("  picture: dimmed, white is "));
}

TEST(StoryUser, DimsNoOtherMonitor) {
    const std::string output = playedSteps(at8s(R"("do": "dimmer", "display": 2, "brightness": 0.5)"));
    EXPECT_THAT(output, HasSubstr("\n!     8.000 s  Halden HX27 is not dimmed by software\n"));
    EXPECT_THAT(output, Not(HasSubstr("picture: dimmed")));
}

TEST(StoryUser, ReloadsAMonitorThatHasLearnedToAnswer) {
    const std::string healed = at8s(R"("do": "becomeHealthy", "display": 5)");
    EXPECT_THAT(endOf(playedSteps(healed), "Tessera T22"), HasSubstr("  DDC/CI: unavailable\n"));
    EXPECT_THAT(
        endOf(playedSteps(healed + R"(, {"atMs": 9000, "do": "reload", "display": 5})"), "Tessera T22"),
        HasSubstr("  DDC/CI: ready\n"));
}

}  // namespace
}  // namespace vantrel::app
