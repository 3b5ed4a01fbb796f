#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/StoryText.h"
#include "runtime/RealScheduler.h"

namespace vantrel::app {
namespace {

using namespace std::chrono_literals;
using platform::LogLevel;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

TEST(StoryPlayer, BeginsWithTitleDescriptionAndDesk) {
    const Story story = readStoryText(storyWith("", R"(, "description": "D")"));
    EXPECT_THAT(played(story, "twins"), StartsWith("T\nD\nDesk: Twins\n\n      0.000 s  "));
}

TEST(StoryPlayer, TakesEveryStepAtItsTime) {
    const std::string output = playedSteps(R"({"atMs": 0, "do": "sleep"}, {"atMs": 1500.25, "do": "wake"})");
    EXPECT_THAT(output, HasSubstr("\n>     0.000 s  sleep\n"));
    EXPECT_THAT(output, HasSubstr("\n>     1.500 s  wake\n"));
    EXPECT_THAT(output, HasSubstr("\n>    31.500 s  the end\n"));
}

TEST(StoryPlayer, TakesStepsOfOneTimeInTheirOrder) {
    EXPECT_THAT(playedSteps(R"({"atMs": 5000, "do": "sleep"}, {"atMs": 5000, "do": "closeLid"})"),
                HasSubstr("\n>     5.000 s  sleep\n>     5.000 s  closeLid\n"));
}

TEST(StoryPlayer, TakesAStepAtTheVeryEnd) {
    EXPECT_THAT(playedSteps(R"({"atMs": 5000, "do": "sleep"})", "default", R"(, "endMs": 5000)"),
                HasSubstr("\n>     5.000 s  sleep\n>     5.000 s  the end\n"));
}

TEST(StoryPlayer, ShowsTheLogFromALevelOn) {
    const Story story = readStoryText(storyWith(""));
    EXPECT_THAT(played(story, "default", LogLevel::debug), HasSubstr(" s  debug    ddc      "));
    EXPECT_THAT(played(story, "default", LogLevel::standard), Not(HasSubstr(" s  debug ")));
    EXPECT_THAT(played(story, "default", LogLevel::standard), HasSubstr(" s  default  display  Refresh: "));
    EXPECT_THAT(played(story, "default", LogLevel::fault), Not(HasSubstr(" s  default ")));
}

TEST(StoryPlayer, ShowsWhatTheProgramTellsItsUserWhenItDoes) {
    const std::string output = playedSteps(R"({"atMs": 1000, "do": "unplug", "display": 3},
        {"atMs": 2000, "do": "closeLid"}, {"atMs": 5000, "do": "disableOutput", "display": 2},
        {"atMs": 8000, "do": "openLid"}, {"atMs": 9000, "do": "disableOutput", "display": 2})",
                                           "slow");
    EXPECT_THAT(output, HasSubstr("\n!     5.000 s  The Mac's only active display can't be turned off.\n"));
    EXPECT_THAT(endOf(output), HasSubstr("Last error: none\n"));
}

TEST(StoryPlayer, QuitsAndStartsTheProgramWithWhatItRemembers) {
    const std::string output =
        playedSteps(R"({"atMs": 8000, "do": "setFocusInput", "display": 2, "input": "0x11"},
        {"atMs": 9000, "do": "quit"}, {"atMs": 10000, "do": "start"})");
    EXPECT_THAT(output,
                HasSubstr("\n>    10.000 s  start\n     10.000 s  default  display  Model for Halden HX27 "));
    EXPECT_THAT(endOf(output, "Halden HX27"), HasSubstr("  focus input: 0x11 HDMI 1\n"));
}

TEST(StoryPlayer, SaysThatTheProgramIsNotRunning) {
    const std::string output = playedSteps(
        R"({"atMs": 1000, "do": "quit"}, {"atMs": 2000, "do": "openPopover"}, {"atMs": 3000, "do": "quit"})");
    EXPECT_THAT(output, HasSubstr("\n!     2.000 s  the program is not running\n"));
    EXPECT_THAT(output, HasSubstr("\n!     3.000 s  the program is not running\n"));
}

TEST(StoryPlayer, SaysThatTheProgramIsRunningAlready) {
    EXPECT_THAT(playedSteps(R"({"atMs": 1000, "do": "start"})"),
                HasSubstr("\n!     1.000 s  the program is running\n"));
}

TEST(StoryPlayer, QuitsInTheMiddleOfAnOperation) {
    const std::string output =
        playedSteps(R"({"atMs": 8000, "do": "selectInput", "display": 2, "input": "0x11"},
        {"atMs": 12000, "do": "returnToMac", "display": 2}, {"atMs": 14000, "do": "quit"})",
                    "inputs");
    EXPECT_THAT(output, HasSubstr("attempt 1\n"));
    EXPECT_THAT(output, Not(HasSubstr("settled")));
    EXPECT_EQ(endOf(output, "Program"), "Program: not running\n");
}

TEST(StoryPlayer, PlaysInRealTimeAsWell) {
    runtime::RealScheduler scheduler;
    std::ostringstream output;
    const Story story = readStoryText(storyWith(R"({"atMs": 20, "do": "sleep"})", R"(, "endMs": 40)"));
    const runtime::MonotonicTime start = scheduler.now();
    StoryPlayer(story, storyDesk("twins"), scheduler, output, LogLevel::standard).play();
    EXPECT_GE(scheduler.now() - start, 40ms);
    EXPECT_THAT(output.str(), HasSubstr(" s  sleep\n"));
    EXPECT_THAT(endOf(output.str(), "Kestrel K32"), HasSubstr("  on the desk: online"));
}

}  // namespace
}  // namespace vantrel::app
