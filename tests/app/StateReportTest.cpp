#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/StoryText.h"

namespace vantrel::app {
namespace {

using testing::HasSubstr;

TEST(StateReport, ShowsAMonitorAndItsControls) {
    EXPECT_EQ(endOf(playedSteps("", "inputs"), "Tessera T27 Deaf"),
              "Tessera T27 Deaf (id 5)\n"
              "  key: 18067-10004-5104\n"
              "  output: on\n"
              "  DDC/CI: ready\n"
              "  control: automatic\n"
              "  input: 0x12 HDMI 2\n"
              "  Mac input: 0x12 HDMI 2\n"
              "  focus input: none\n"
              "  dimmer: off, brightness 1.00, contrast 0.50\n"
              "  0x10 Brightness: 50 of 100\n"
              "  0x12 Contrast: 70 of 100\n"
              "  0x62 Volume: 40 of 100\n"
              "  on the desk: online, shows 0x12 HDMI 2, the computer's\n");
}

TEST(StateReport, ShowsEveryDisplayOfTheDeskInItsOrder) {
    const std::string end = endOf(playedSteps(""));
    EXPECT_EQ(end, "Last error: none\nOperations under way: 0\nTurned off: none\n");
    const std::string output = playedSteps("");
    std::size_t place = 0;
    for (const auto& plan : storyDesk("default").displays) {
        const std::size_t next =
            output.find("\n" + plan.name + " (id " + std::to_string(plan.id) + ")\n", place);
        ASSERT_NE(next, std::string::npos) << plan.name;
        place = next;
    }
}

TEST(StateReport, ShowsChoicesByNameAndActionsAsButtons) {
    const std::string end = endOf(playedSteps(""), "Halden HX27");
    EXPECT_THAT(end, HasSubstr("  0x04 Restore factory defaults: a button\n"));
    EXPECT_THAT(end, HasSubstr("  0xD6 Power: On\n"));
}

TEST(StateReport, ShowsAMonitorThatNeverAnswers) {
    EXPECT_EQ(endOf(playedSteps(""), "Tessera T22 Panel"),
              "Tessera T22 Panel (id 5)\n"
              "  key: 18067-8707-77\n"
              "  output: on\n"
              "  DDC/CI: unavailable\n"
              "  control: automatic\n"
              "  input: none\n"
              "  Mac input: unknown\n"
              "  focus input: none\n"
              "  dimmer: on, brightness 1.00, contrast 0.50\n"
              "  on the desk: online\n");
}

TEST(StateReport, ShowsWhatIsStillUnderWay) {
    const std::string steps = R"({"atMs": 8000, "do": "selectInput", "display": 2, "input": "0x11"},
                                 {"atMs": 12000, "do": "returnToMac", "display": 2})";
    const std::string output = playedSteps(steps, "inputs", R"(, "endMs": 15000)");
    EXPECT_THAT(endOf(output), HasSubstr("Operations under way: 1\n"));
    EXPECT_THAT(endOf(output, "Lumeo L27 Slow"), HasSubstr("  returning to the Mac\n"));
}

TEST(StateReport, ShowsWhereTheProgramIsWrong) {
    const std::string end =
        endOf(playedSteps(R"({"atMs": 8000, "do": "pressInputButton", "display": 2, "input": "0x11"})"),
              "Halden HX27");
    EXPECT_THAT(end, HasSubstr("  input: 0x1B USB-C\n"));
    EXPECT_THAT(end, HasSubstr("  on the desk: online, shows 0x11 HDMI 1\n"));
}

TEST(StateReport, ShowsADeskWhoseProgramIsNotRunning) {
    const std::string output = playedSteps(R"({"atMs": 8000, "do": "quit"})");
    EXPECT_EQ(endOf(output, "Program"), "Program: not running\n");
    EXPECT_EQ(endOf(output, "Halden HX27"),
              "Halden HX27 (id 2)\n  on the desk: online, shows 0x1B USB-C, the computer's\n");
}

TEST(StateReport, CallsANamelessDisplaySo) {
    EXPECT_THAT(playedSteps("", "hostile"), HasSubstr("\nNo name (id 10)\n"));
}

}  // namespace
}  // namespace vantrel::app
