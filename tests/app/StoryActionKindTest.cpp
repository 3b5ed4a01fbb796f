#include <gtest/gtest.h>
#include <set>

#include "app/StoryActionKind.h"
#include "app/StoryText.h"

namespace vantrel::app {
namespace {

std::string described(const std::string& step, std::string_view desk = "default") {
    const Story story = readStoryText(storyWith(step));
    return story.steps.empty() ? story.title
                               : StoryActionKind::describe(story.steps.front(), storyDesk(desk));
}

TEST(StoryActionKind, HasOneWordForEveryAction) {
    std::set<std::string_view> words;
    for (const StoryActionKind& kind : StoryActionKind::all()) {
        words.insert(kind.word);
        EXPECT_EQ(StoryActionKind::named(kind.word), &kind) << kind.word;
        EXPECT_EQ(&StoryActionKind::of(kind.action), &kind) << kind.word;
    }
    EXPECT_EQ(words.size(), StoryActionKind::all().size());
}

TEST(StoryActionKind, KnowsNoOtherWord) { EXPECT_EQ(StoryActionKind::named("jump"), nullptr); }

TEST(StoryActionKind, TakesWhatIsRequiredAndWhatIsOptional) {
    const StoryActionKind& kind = *StoryActionKind::named("disableOutput");
    EXPECT_TRUE(kind.needs("display"));
    EXPECT_TRUE(kind.takes("display"));
    EXPECT_FALSE(kind.needs("input"));
    EXPECT_TRUE(kind.takes("input"));
    EXPECT_FALSE(kind.takes("value"));
}

TEST(StoryActionKind, DescribesAStepWithItsDisplayAndValues) {
    EXPECT_EQ(described(R"({"atMs": 0, "do": "sleep"})"), "sleep");
    EXPECT_EQ(described(R"({"atMs": 0, "do": "selectInput", "display": 2, "input": 17})"),
              "selectInput Halden HX27 (id 2) 0x11");
    EXPECT_EQ(described(R"({"atMs": 0, "do": "set", "display": 2, "code": 16, "value": 30})"),
              "set Halden HX27 (id 2) 0x10 30");
    EXPECT_EQ(described(R"({"atMs": 0, "do": "dimmer", "display": 5, "brightness": 0.5, "contrast": 0.25})"),
              "dimmer Tessera T22 Panel (id 5) brightness 0.5 contrast 0.25");
    EXPECT_EQ(described(R"({"atMs": 0, "do": "controlMode", "display": 2, "mode": "software"})"),
              "controlMode Halden HX27 (id 2) software");
    EXPECT_EQ(described(R"({"atMs": 0, "do": "reconfigure", "display": 1, "flags": 4096})"),
              "reconfigure Built-in Display (id 1) 0x1000");
    EXPECT_EQ(described(R"({"atMs": 0, "do": "refuse", "refusal": "complete"})"), "refuse complete");
}

TEST(StoryActionKind, DescribesANamelessDisplayByItsID) {
    EXPECT_EQ(described(R"({"atMs": 0, "do": "unplug", "display": 10})", "hostile"), "unplug id 10");
}

}  // namespace
}  // namespace vantrel::app
