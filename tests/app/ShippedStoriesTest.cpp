// Every story that comes with the program ends as docs/stories.md says. With
// VANTREL_TRACES set to a folder, what each one prints is also written there, so
// that two runs of the whole suite can be compared.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "app/ShippedStories.h"
#include "app/StoryCheck.h"
#include "app/StoryText.h"

namespace vantrel::app {
namespace {

using testing::HasSubstr;

std::filesystem::path storiesFolder() {
    return std::filesystem::path(__FILE__).parent_path().parent_path().parent_path() / "stories";
}

Story shipped(std::string_view name) {
    StoryFileResult result = ShippedStories::read(name);
    if (const auto* error = std::get_if<simulated::FileError>(&result)) {
        ADD_FAILURE() << error->line();
        return {};
    }
    return std::get<Story>(std::move(result));
}

std::string outputOf(std::string_view name) {
    const Story story = shipped(name);
    return played(story, story.desk.value());
}

// What must be found: on the way, and at the end of a display.
struct Ending {
    std::vector<std::string> onTheWay;
    std::map<std::string, std::vector<std::string>> displays;
};

const std::string settled = ": monitor settled on the Mac input\n";
const std::string online = "\n  output: on\n";
const std::string off = "\n  output: off\n";

const std::map<std::string_view, Ending>& endings() {
    static const std::map<std::string_view, Ending> all{
        {"return-good",
         {{"   15.740 s  default  display  Halden HX27" + settled},
          {{"Halden HX27", {online, "online, shows 0x1B USB-C, the computer's"}}}}},
        {"return-slow",
         {{"   23.980 s  default  display  Lumeo L27 Slow" + settled},
          {{"Lumeo L27 Slow", {online, "online, shows 0x0F DisplayPort 1, the computer's"}}}}},
        {"return-pulsing",
         {{"Brindle B27 Pulse: reconnected to a fresh AV service handle\n", "Brindle B27 Pulse" + settled},
          {{"Brindle B27 Pulse", {online, "online, shows 0x0F DisplayPort 1, the computer's"}}}}},
        {"return-neighbour",
         {{"attempt 2\n", "Brindle B34 Ultrawide" + settled},
          {{"Brindle B34 Ultrawide", {online, "online, shows 0x0F DisplayPort 1, the computer's"}},
           {"Kestrel K24", {"input: 0x11 HDMI 1\n", "online, shows 0x0F DisplayPort 1\n"}}}}},
        {"return-misreporting",
         {{"Arcora 280K" + settled},
          {{"Arcora 280K",
            {online, "  input: 0x0F DisplayPort 1\n", "online, shows 0x0F DisplayPort 1, the computer's"}}}}},
        {"return-blinking",
         {{"did not take the Mac input, attempt 2\n", "Orlo O27 Boomerang" + settled},
          {{"Orlo O27 Boomerang", {"online, shows 0x11 HDMI 1, the computer's"}}}}},
        {"return-ignoring",
         {{"did not take the Mac input, attempt 1\n", "Norvik N27 Mule" + settled},
          {{"Norvik N27 Mule", {"online, shows 0x0F DisplayPort 1, the computer's"}}}}},
        {"return-deaf",
         {{"!    94.300 s  Tessera T27 Deaf did not return to the Mac's input. Try again or use the "
           "monitor's "
           "buttons.\n",
           "Last error: Tessera T27 Deaf did not return"},
          {{"Tessera T27 Deaf", {online, "online, shows 0x0F DisplayPort 1\n"}}}}},
        {"return-dead",
         {{"!    96.940 s  Halden HX27 did not return to the Mac's input.", "Halden HX27" + settled,
           "Last error: none\n"},
          {{"Halden HX27", {online, "online, shows 0x1B USB-C, the computer's"}}}}},
        {"return-superseded",
         {{"Lumeo L27 Slow: return to the Mac replaced by another input\n", "Last error: none\n"},
          {{"Lumeo L27 Slow", {off, "no picture from the computer, shows 0x12 HDMI 2\n"}}}}},
        {"output-good",
         {{"Turning Mac output off for Halden HX27 (id 2), switching to 0x0F\n", "Halden HX27" + settled},
          {{"Halden HX27", {online, "online, shows 0x1B USB-C, the computer's"}}}}},
        {"output-slow",
         {{"did not take the Mac input, attempt 1\n", "Lumeo L27 Slow" + settled},
          {{"Lumeo L27 Slow", {online, "online, shows 0x0F DisplayPort 1, the computer's"}}}}},
        {"output-pulsing",
         {{"Brindle B27 Pulse: reconnected to a fresh AV service handle\n", "Brindle B27 Pulse" + settled},
          {{"Brindle B27 Pulse", {online, "online, shows 0x0F DisplayPort 1, the computer's"}}}}},
        {"output-misreporting",
         {{"Arcora 280K: learned Mac input 0x0F\n", "Arcora 280K" + settled},
          {{"Arcora 280K", {online, "online, shows 0x0F DisplayPort 1, the computer's"}}}}},
        {"output-blinking",
         {{"Orlo O27 Boomerang" + settled},
          {{"Orlo O27 Boomerang", {online, "online, shows 0x11 HDMI 1, the computer's"}}}}},
        {"output-dead",
         {{"switching to nothing\n", "no Mac input to switch to\n", "Last error: none\n"},
          {{"Tessera T22 Panel", {online, "on the desk: online\n"}}}}},
        {"output-only-display",
         {{"!    12.000 s  The Mac's only active display can't be turned off.\n",
           "Turned off: Brindle B34 Ultrawide\n"},
          {{"Brindle B34 Ultrawide", {off, "no picture from the computer"}}}}},
        {"output-refused",
         {{"!     9.000 s  macOS refused to turn the output off for Norvik N24.\n",
           "!    17.000 s  Couldn't turn Norvik N24 back on.", "Norvik N24" + settled, "Last error: none\n"},
          {{"Norvik N24", {online, "online, shows 0x11 HDMI 1, the computer's"}}}}},
        {"output-unplugged",
         {{"!    15.000 s  Couldn't turn Halden HX27 back on. If it was disconnected, plug the cable back "
           "in.\n",
           "Halden HX27" + settled, "Turned off: none\n"},
          {{"Halden HX27", {online, "online, shows 0x1B USB-C, the computer's"}}}}},
        {"output-restart",
         {{"output off Halden HX27, new DDC matches 4\n", "Halden HX27" + settled, "Turned off: none\n"},
          {{"Halden HX27", {online, "online, shows 0x1B USB-C, the computer's"}}}}},
        {"wake",
         {{"Last error: none\n"},
          {{"Lumeo L27", {"0x10 Brightness: 40 of 100\n"}},
           {"Orlo Meeting 86", {"0x10 Brightness: 50 of 100\n"}}}}},
        {"dimmer",
         {{"Last error: none\n"},
          {{"Tessera T22 Panel", {"dimmer: on, brightness 0.50, contrast 0.50\n", "picture: dimmed, "}}}}},
        {"sliders",
         {{"write 0x10 = 40 (0x28)\n"},
          {{"Built-in Display", {"  brightness: 0.40\n", "  panel: 0.40\n"}},
           {"Halden HX27", {"0x10 Brightness: 40 of 100\n", "0x12 Contrast: 33 of 100\n"}}}}},
    };
    return all;
}

TEST(ShippedStories, AreTheStoriesOfTheFolder) {
    std::set<std::string> inFolder;
    for (const auto& file : std::filesystem::directory_iterator(storiesFolder())) {
        inFolder.insert(file.path().stem().string());
    }
    std::set<std::string> listed;
    for (const auto& entry : ShippedStories::list()) listed.emplace(entry.name);
    EXPECT_EQ(listed, inFolder);
    EXPECT_EQ(listed.size(), ShippedStories::list().size());
}

TEST(ShippedStories, HaveTheFilesTextsByteForByte) {
    for (const auto& entry : ShippedStories::list()) {
        std::ifstream file(storiesFolder() / (std::string(entry.name) + ".json"), std::ios::binary);
        std::stringstream text;
        text << file.rdbuf();
        EXPECT_EQ(ShippedStories::text(entry.name), text.str()) << entry.name;
    }
}

TEST(ShippedStories, HaveATitleADescriptionOfOneLineAndADeskThatFits) {
    for (const auto& entry : ShippedStories::list()) {
        const Story story = shipped(entry.name);
        EXPECT_NE(story.title, "") << entry.name;
        EXPECT_NE(entry.description, "") << entry.name;
        EXPECT_EQ(entry.description.find('\n'), std::string::npos) << entry.name;
        ASSERT_TRUE(story.desk) << entry.name;
        const auto missing = StoryCheck::missing(story, storyDesk(*story.desk));
        EXPECT_FALSE(missing) << entry.name << ": " << missing->place << ": " << missing->reason;
    }
}

TEST(ShippedStories, EndAsTheyAreMeantTo) {
    std::set<std::string_view> told;
    for (const auto& [name, ending] : endings()) {
        SCOPED_TRACE(name);
        told.insert(name);
        const std::string output = outputOf(name);
        for (const std::string& fact : ending.onTheWay) EXPECT_THAT(output, HasSubstr(fact));
        for (const auto& [display, facts] : ending.displays) {
            for (const std::string& fact : facts)
                EXPECT_THAT(endOf(output, display + " (id "), HasSubstr(fact));
        }
        EXPECT_THAT(endOf(output), HasSubstr("\nOperations under way: 0\n"));
    }
    for (const auto& entry : ShippedStories::list()) EXPECT_TRUE(told.contains(entry.name)) << entry.name;
}

TEST(ShippedStories, PrintTheSameBytesInEveryRun) {
    const char* folder = std::getenv("VANTREL_TRACES");
    for (const auto& entry : ShippedStories::list()) {
        const Story story = shipped(entry.name);
        const std::string output = played(story, story.desk.value(), platform::LogLevel::debug);
        EXPECT_TRUE(output == played(story, story.desk.value(), platform::LogLevel::debug)) << entry.name;
        if (folder == nullptr) continue;
        std::filesystem::create_directories(folder);
        std::ofstream(std::filesystem::path(folder) / (std::string(entry.name) + ".story")) << output;
    }
}

TEST(ShippedStories, HaveNoTextForAnUnknownName) {
    EXPECT_EQ(ShippedStories::text("nobody"), std::nullopt);
    EXPECT_EQ(ShippedStories::text("wake.json"), std::nullopt);
}

TEST(ShippedStories, ReadAFileWhenTheNameIsNoneOfTheirs) {
    const std::string path = (storiesFolder() / "wake.json").string();
    EXPECT_EQ(shipped(path).title, "After a night's sleep");
    EXPECT_EQ(ShippedStories::fileName(path), path);
    EXPECT_EQ(ShippedStories::fileName("wake"), "stories/wake.json");
}

}  // namespace
}  // namespace vantrel::app
