#include <chrono>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/StoryFile.h"
#include "app/StoryText.h"

namespace vantrel::app {
namespace {

using namespace std::chrono_literals;
using testing::SizeIs;

StoryStep onlyStep(const std::string& text) {
    const Story story = readStoryText(storyWith(text));
    EXPECT_THAT(story.steps, SizeIs(1)) << story.title;
    return story.steps.empty() ? StoryStep{} : story.steps.front();
}

TEST(StoryFile, ReadsTheStory) {
    const Story story = readStoryText(
        R"({"title": "A", "description": "B", "desk": "twins", "endMs": 2500.5,
            "steps": [{"atMs": 1, "do": "sleep"}, {"atMs": 1, "do": "wake"}]})");
    EXPECT_EQ(story.title, "A");
    EXPECT_EQ(story.description, "B");
    EXPECT_EQ(story.desk, "twins");
    EXPECT_EQ(story.end, 2500500us);
    ASSERT_THAT(story.steps, SizeIs(2));
    EXPECT_EQ(story.steps[0].action, StoryAction(WorldAction::sleep));
    EXPECT_EQ(story.steps[1].action, StoryAction(WorldAction::wake));
}

TEST(StoryFile, GivesAStoryThatSaysLittleItsDefaults) {
    const Story story = readStoryText(storyWith(""));
    EXPECT_EQ(story.description, "");
    EXPECT_EQ(story.desk, std::nullopt);
    EXPECT_EQ(story.end, 30s);
}

TEST(StoryFile, LeavesTheLastStepHalfAMinute) {
    EXPECT_EQ(readStoryText(storyWith(R"({"atMs": 5000, "do": "sleep"})")).end, 35s);
}

TEST(StoryFile, ReadsEveryFieldOfAStep) {
    const StoryStep input =
        onlyStep(R"({"atMs": 1.5, "do": "selectInput", "display": "0xA", "input": "0x0F11"})");
    EXPECT_EQ(input.at, 1500us);
    EXPECT_EQ(input.display, 10U);
    EXPECT_EQ(input.input, 0x0F11);
    const StoryStep set =
        onlyStep(R"({"atMs": 0, "do": "set", "display": 2, "code": "0xFE", "value": 65535})");
    EXPECT_EQ(set.code, 0xFE);
    EXPECT_EQ(set.value, 65535);
    const StoryStep dimmer =
        onlyStep(R"({"atMs": 0, "do": "dimmer", "display": 2, "brightness": 0.25, "contrast": 1})");
    EXPECT_EQ(dimmer.brightness, 0.25);
    EXPECT_EQ(dimmer.contrast, 1.0);
    EXPECT_EQ(onlyStep(R"({"atMs": 0, "do": "controlMode", "display": 2, "mode": "ddc"})").mode,
              model::ControlMode::ddc);
    EXPECT_EQ(onlyStep(R"({"atMs": 0, "do": "reconfigure", "display": 2, "flags": "0x1000"})").flags,
              0x1000U);
    EXPECT_EQ(onlyStep(R"({"atMs": 0, "do": "refuse", "refusal": "enable"})").refusal,
              simulated::Refusal::enable);
}

TEST(StoryFile, LeavesOutWhatMayBeLeftOut) {
    EXPECT_EQ(onlyStep(R"({"atMs": 0, "do": "setMacInput", "display": 2})").input, std::nullopt);
    EXPECT_EQ(onlyStep(R"({"atMs": 0, "do": "dimmer", "display": 2, "contrast": 1})").brightness,
              std::nullopt);
}

TEST(StoryFile, RefusesAStoryThatIsNoObject) {
    EXPECT_EQ(mistakeInStory("[]"), "x.json: must be an object, not a list");
}

TEST(StoryFile, RefusesWhatIsNoJSON) {
    EXPECT_EQ(mistakeInStory("{").rfind("x.json: line 1, column 2: ", 0), 0U);
}

TEST(StoryFile, RefusesNoTitle) {
    EXPECT_EQ(mistakeInStory(R"({"steps": []})"), "x.json: title: is missing");
}

TEST(StoryFile, RefusesNoSteps) {
    EXPECT_EQ(mistakeInStory(R"({"title": "T"})"), "x.json: steps: is missing");
}

TEST(StoryFile, RefusesAnUnknownFieldOfTheStory) {
    EXPECT_EQ(mistakeInStory(storyWith("", R"(, "colour": 1)")), "x.json: colour: is not a known field");
}

TEST(StoryFile, RefusesADeskThatDoesNotComeWithTheProgram) {
    EXPECT_EQ(mistakeInStory(storyWith("", R"(, "desk": "defalt")")),
              "x.json: desk: \"defalt\" is not a desk that comes with the program");
}

TEST(StoryFile, RefusesAnEndBeforeTheLastStep) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": 2, "do": "sleep"})", R"(, "endMs": 1)")),
              "x.json: endMs: is before the last step");
}

TEST(StoryFile, TakesAnEndAtTheLastStep) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": 2, "do": "sleep"})", R"(, "endMs": 2)")), "");
}

TEST(StoryFile, RefusesAStepWithoutATime) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"do": "sleep"})")), "x.json: steps[0].atMs: is missing");
}

TEST(StoryFile, RefusesAStepWithoutAnAction) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": 0})")), "x.json: steps[0].do: is missing");
}

TEST(StoryFile, RefusesAnUnknownAction) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": 0, "do": "sleep"}, {"atMs": 0, "do": "jump"})")),
              "x.json: steps[1].do: \"jump\" is not an action");
}

TEST(StoryFile, RefusesAnUnknownFieldOfAStep) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": 0, "do": "sleep", "colour": 1})")),
              "x.json: steps[0].colour: is not a known field");
}

TEST(StoryFile, RefusesAFieldOfAnotherAction) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": 0, "do": "unplug", "display": 2, "input": 15})")),
              "x.json: steps[0].input: does not belong to unplug");
}

TEST(StoryFile, RefusesAStepWithoutAFieldThatItsActionNeeds) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": 0, "do": "selectInput", "display": 2})")),
              "x.json: steps[0].input: is missing");
}

TEST(StoryFile, RefusesADimmerStepThatMovesNoSlider) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": 0, "do": "dimmer", "display": 2})")),
              "x.json: steps[0]: must have brightness, contrast or both");
}

TEST(StoryFile, RefusesAStepBeforeTheOneAboveIt) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": 5, "do": "sleep"}, {"atMs": 4, "do": "wake"})")),
              "x.json: steps[1].atMs: is before the step above it");
}

TEST(StoryFile, RefusesANegativeTime) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": -1, "do": "sleep"})")),
              "x.json: steps[0].atMs: -1 is less than 0");
}

TEST(StoryFile, RefusesAnInputThatNoMonitorCanHave) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": 0, "do": "selectInput", "display": 2, "input": 65536})")),
              "x.json: steps[0].input: 65536 is more than 65535");
}

TEST(StoryFile, RefusesAnUnknownControlMode) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": 0, "do": "controlMode", "display": 2, "mode": "magic"})")),
              "x.json: steps[0].mode: \"magic\" is not one of automatic, ddc, software");
}

TEST(StoryFile, RefusesAnUnknownRefusal) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": 0, "do": "refuse", "refusal": "all"})")),
              "x.json: steps[0].refusal: \"all\" is not one of nothing, begin, enable, complete");
}

TEST(StoryFile, RefusesABrightnessAboveOne) {
    EXPECT_EQ(mistakeInStory(storyWith(R"({"atMs": 0, "do": "setBuiltInBrightness", "brightness": 1.5})")),
              "x.json: steps[0].brightness: 1.5 is more than 1");
}

TEST(StoryFile, RefusesMoreStepsThanAnybodyWrites) {
    const auto withSteps = [](int count) {
        std::string steps;
        for (int index = 0; index < count; ++index)
            steps += std::string(index == 0 ? "" : ",") + R"({"atMs":0,"do":"sleep"})";
        return mistakeInStory(storyWith(steps));
    };
    EXPECT_EQ(withSteps(10000), "");
    EXPECT_EQ(withSteps(10001), "x.json: steps: has more than 10000 steps");
}

TEST(StoryFile, ReadsAFile) {
    const auto path = std::filesystem::path(testing::TempDir()) / "vantrel-story-file-test.json";
    std::ofstream(path) << storyWith("");
    const StoryFileResult result = StoryFile::readFile(path);
    std::filesystem::remove(path);
    ASSERT_TRUE(std::holds_alternative<Story>(result));
    EXPECT_EQ(std::get<Story>(result).title, "T");
}

TEST(StoryFile, SaysThatAFileIsNotThere) {
    const StoryFileResult result = StoryFile::readFile("no-such-story");
    ASSERT_TRUE(std::holds_alternative<simulated::FileError>(result));
    EXPECT_EQ(std::get<simulated::FileError>(result).line(), "no-such-story: No such file or directory");
}

}  // namespace
}  // namespace vantrel::app
