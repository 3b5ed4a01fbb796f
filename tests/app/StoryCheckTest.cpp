#include <gtest/gtest.h>

#include "app/StoryCheck.h"
#include "app/StoryText.h"

namespace vantrel::app {
namespace {

std::string missing(const std::string& steps, const simulated::Desk& desk) {
    const Story story = readStoryText(storyWith(steps));
    EXPECT_EQ(story.title, "T");
    const auto mistake = StoryCheck::missing(story, desk);
    return mistake ? mistake->place + ": " + mistake->reason : "";
}

std::string missing(const std::string& steps) { return missing(steps, storyDesk("default")); }

TEST(StoryCheck, FindsNothingWrongWithDisplaysThatAreThere) {
    EXPECT_EQ(missing(R"({"atMs": 0, "do": "selectInput", "display": 2, "input": "0x99"},
                         {"atMs": 0, "do": "pressInputButton", "display": 2, "input": "0x10"},
                         {"atMs": 0, "do": "reconfigure", "display": 1, "flags": 1},
                         {"atMs": 0, "do": "setBuiltInBrightness", "brightness": 1}, {"atMs": 0, "do": "sleep"})"),
              "");
}

TEST(StoryCheck, MissesADisplay) {
    EXPECT_EQ(missing(R"({"atMs": 0, "do": "sleep"}, {"atMs": 0, "do": "unplug", "display": 7})"),
              "steps[1].display: the desk \"Default\" has no display 7");
}

TEST(StoryCheck, MissesAnExternalMonitor) {
    EXPECT_EQ(missing(R"({"atMs": 0, "do": "returnToMac", "display": 1})"),
              "steps[0].display: Built-in Display is not an external monitor");
}

TEST(StoryCheck, MissesAMonitorThatSpeaksDDC) {
    EXPECT_EQ(missing(R"({"atMs": 0, "do": "switchOff", "display": 17})", storyDesk("large")),
              "steps[0].display: Norvik S15 does not speak DDC/CI");
}

TEST(StoryCheck, MissesAnInput) {
    EXPECT_EQ(missing(R"({"atMs": 0, "do": "pressInputButton", "display": 2, "input": "0x12"})"),
              "steps[0].input: Halden HX27 has no input 0x12");
}

TEST(StoryCheck, MissesInputsAltogether) {
    EXPECT_EQ(missing(R"({"atMs": 0, "do": "pressInputButton", "display": 5, "input": "0x0F"})"),
              "steps[0].input: Tessera T22 Panel has no input 0x0F");
}

TEST(StoryCheck, MissesABuiltInDisplay) {
    simulated::Desk desk = storyDesk("default");
    desk.displays.erase(desk.displays.begin());
    EXPECT_EQ(missing(R"({"atMs": 0, "do": "setBuiltInBrightness", "brightness": 1})", desk),
              "steps[0]: the desk \"Default\" has no built-in display");
}

}  // namespace
}  // namespace vantrel::app
