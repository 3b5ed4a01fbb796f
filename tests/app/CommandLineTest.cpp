#include <gtest/gtest.h>

#include "app/CommandLine.h"
#include "app/ShippedStories.h"
#include "platform/simulated/ShippedDesks.h"

namespace vantrel::app {
namespace {

using Arguments = std::vector<std::string>;

CommandLine parsed(const Arguments& arguments) {
    const auto result = CommandLine::parse(arguments);
    const auto* mistake = std::get_if<CommandLine::Mistake>(&result);
    EXPECT_EQ(mistake, nullptr) << (mistake != nullptr ? mistake->reason : "");
    const auto* line = std::get_if<CommandLine>(&result);
    return line != nullptr ? *line : CommandLine{};
}

std::string mistakeOf(const Arguments& arguments) {
    const auto result = CommandLine::parse(arguments);
    const auto* mistake = std::get_if<CommandLine::Mistake>(&result);
    return mistake != nullptr ? mistake->reason : "no mistake";
}

std::string textOf(const Arguments& arguments) {
    const auto result = CommandLine::parse(arguments);
    const auto* text = std::get_if<CommandLine::Text>(&result);
    return text != nullptr ? text->text : "no text";
}

TEST(CommandLine, AsksForNothingWithoutArguments) {
    const CommandLine line = parsed({});
    EXPECT_FALSE(line.probe);
    EXPECT_FALSE(line.simulate);
    EXPECT_FALSE(line.virtualTime);
    EXPECT_FALSE(line.play);
    EXPECT_FALSE(line.state);
    EXPECT_FALSE(line.log);
    EXPECT_FALSE(line.parseCapabilities);
}

TEST(CommandLine, FindsProbeAnywhere) {
    EXPECT_TRUE(parsed({"--probe"}).probe);
    EXPECT_TRUE(parsed({"--probe", "--simulate"}).probe);
    EXPECT_TRUE(parsed({"--simulate", "--probe", "--log", "debug"}).probe);
    EXPECT_TRUE(parsed({"--simulate", "twins", "--log", "debug", "--probe"}).probe);
}

TEST(CommandLine, TakesTheDefaultDeskWithoutAFile) {
    EXPECT_EQ(parsed({"--simulate"}).simulate, "");
    EXPECT_EQ(parsed({"--simulate", "--probe"}).simulate, "");
}

TEST(CommandLine, TakesADeskFile) {
    EXPECT_EQ(parsed({"--simulate", "a folder/desk.json", "--probe"}).simulate, "a folder/desk.json");
    EXPECT_EQ(parsed({"--simulate=desk.json"}).simulate, "desk.json");
}

TEST(CommandLine, KnowsTheFiveLogLevels) {
    using platform::LogLevel;
    EXPECT_EQ(parsed({"--log", "debug"}).log, LogLevel::debug);
    EXPECT_EQ(parsed({"--log", "info"}).log, LogLevel::info);
    EXPECT_EQ(parsed({"--log", "default"}).log, LogLevel::standard);
    EXPECT_EQ(parsed({"--log", "error"}).log, LogLevel::error);
    EXPECT_EQ(parsed({"--log", "fault"}).log, LogLevel::fault);
}

TEST(CommandLine, NamesTheLevelsWhenOneIsUnknown) {
    EXPECT_EQ(mistakeOf({"--log", "loud"}),
              "--log: no level \"loud\"; there are debug, info, default, error, fault (see --help)");
}

TEST(CommandLine, WantsALevelAfterLog) {
    EXPECT_EQ(mistakeOf({"--log"}), "--log: 1 required LEVEL missing (see --help)");
}

TEST(CommandLine, RefusesAnUnknownOptionByName) {
    EXPECT_EQ(mistakeOf({"--brightness"}),
              "The following argument was not expected: --brightness (see --help)");
    EXPECT_EQ(mistakeOf({"--probe", "-x"}), "The following argument was not expected: -x (see --help)");
}

TEST(CommandLine, RefusesALooseWordByName) {
    EXPECT_EQ(mistakeOf({"probe"}), "The following argument was not expected: probe (see --help)");
    EXPECT_EQ(mistakeOf({"--simulate", "one", "two"}),
              "The following argument was not expected: two (see --help)");
}

TEST(CommandLine, RecordsAProbe) {
    EXPECT_EQ(parsed({"--probe"}).record, std::nullopt);
    EXPECT_EQ(parsed({"--probe", "--record", "desk.json"}).record, "desk.json");
    EXPECT_EQ(parsed({"--simulate", "--probe", "--record", "desk.json"}).record, "desk.json");
}

TEST(CommandLine, RecordsNothingButAProbe) {
    EXPECT_EQ(mistakeOf({"--record", "desk.json"}),
              "--record needs --probe, which is what is recorded (see --help)");
    EXPECT_EQ(mistakeOf({"--play", "wake", "--record", "desk.json"}),
              "--record needs --probe, which is what is recorded (see --help)");
}

TEST(CommandLine, WantsAFileToRecordInto) {
    EXPECT_EQ(mistakeOf({"--probe", "--record", ""}), "--record: no file is given (see --help)");
    EXPECT_EQ(mistakeOf({"--probe", "--record"}), "--record: 1 required FILE missing (see --help)");
}

TEST(CommandLine, RefusesVirtualTimeForRealMonitors) {
    EXPECT_EQ(mistakeOf({"--virtual-time"}),
              "--virtual-time needs --simulate: real monitors answer in real time (see --help)");
    EXPECT_TRUE(parsed({"--virtual-time", "--simulate", "--probe"}).virtualTime);
}

TEST(CommandLine, RefusesVirtualTimeForPeople) {
    EXPECT_EQ(mistakeOf({"--virtual-time", "--simulate"}),
              "--virtual-time is for --probe and --play: people live in real time (see --help)");
}

TEST(CommandLine, TakesAFolderForPictures) {
    EXPECT_EQ(parsed({"--screenshot", "a folder"}).screenshot, "a folder");
    EXPECT_FALSE(parsed({}).screenshot);
}

TEST(CommandLine, WantsAFolderForPictures) {
    EXPECT_EQ(mistakeOf({"--screenshot", ""}), "--screenshot: no folder is given (see --help)");
}

TEST(CommandLine, RefusesPicturesOfWhatHasNoInterface) {
    const std::string reason =
        "--screenshot draws the interface: not with --probe, --play or --parse-capabilities (see --help)";
    EXPECT_EQ(mistakeOf({"--screenshot", "a", "--probe", "--simulate"}), reason);
    EXPECT_EQ(mistakeOf({"--screenshot", "a", "--play", "wake"}), reason);
    EXPECT_EQ(mistakeOf({"--screenshot", "a", "--parse-capabilities"}), reason);
}

TEST(CommandLine, TakesAStoryWithADeskOrWithout) {
    EXPECT_EQ(parsed({"--play", "a folder/story.json"}).play, "a folder/story.json");
    EXPECT_FALSE(parsed({"--play", "wake"}).simulate);
    EXPECT_EQ(parsed({"--simulate", "twins", "--play", "wake"}).simulate, "twins");
    EXPECT_EQ(parsed({"--simulate", "--play", "wake"}).play, "wake");
    EXPECT_TRUE(parsed({"--play", "wake", "--virtual-time"}).virtualTime);
}

TEST(CommandLine, WantsAStoryAfterPlay) {
    EXPECT_EQ(mistakeOf({"--play"}), "--play: 1 required STORY missing (see --help)");
}

TEST(CommandLine, PlaysNothingBesideWhatElseItDoes) {
    EXPECT_EQ(mistakeOf({"--play", "wake", "--probe"}), "--play and --probe: one at a time (see --help)");
    EXPECT_EQ(mistakeOf({"--play", "wake", "--parse-capabilities"}),
              "--play and --parse-capabilities: one at a time (see --help)");
}

TEST(CommandLine, TakesAFolderForTheStateOfASimulation) {
    EXPECT_EQ(parsed({"--simulate", "--state", "a folder"}).state, "a folder");
    EXPECT_EQ(parsed({"--state=folder", "--simulate", "twins", "--probe"}).state, "folder");
    EXPECT_EQ(parsed({"--play", "wake", "--state", "folder"}).state, "folder");
}

TEST(CommandLine, WantsAFolderAfterState) {
    EXPECT_EQ(mistakeOf({"--simulate", "--state"}), "--state: 1 required DIR missing (see --help)");
    EXPECT_EQ(mistakeOf({"--simulate", "--state", ""}), "--state: no folder is given (see --help)");
}

TEST(CommandLine, RefusesAnotherPlaceForTheSettingsOfRealMonitors) {
    EXPECT_EQ(mistakeOf({"--probe", "--state", "folder"}),
              "--state needs --simulate: settings for real monitors have their place (see --help)");
}

TEST(CommandLine, TakesAFileOrNoneToParse) {
    EXPECT_EQ(parsed({"--parse-capabilities"}).parseCapabilities, "");
    EXPECT_EQ(parsed({"--parse-capabilities", "raw.txt"}).parseCapabilities, "raw.txt");
}

TEST(CommandLine, HelpNamesEveryOptionShippedDeskAndStory) {
    const std::string help = textOf({"--help"});
    for (const char* option : {"--probe", "--simulate", "--virtual-time", "--play", "--state", "--log",
                               "--parse-capabilities", "--help", "--version"}) {
        EXPECT_NE(help.find(option), std::string::npos) << option;
    }
    for (const auto& desk : simulated::ShippedDesks::list()) {
        EXPECT_NE(help.find("  " + std::string(desk.name) + " "), std::string::npos) << desk.name;
        EXPECT_NE(help.find(desk.description), std::string::npos) << desk.name;
    }
    for (const auto& story : ShippedStories::list()) {
        EXPECT_NE(help.find("  " + std::string(story.name) + " "), std::string::npos) << story.name;
        EXPECT_NE(help.find(story.description), std::string::npos) << story.name;
    }
}

TEST(CommandLine, HelpWinsOverWhatElseIsAsked) {
    EXPECT_NE(textOf({"--probe", "--help"}).find("--simulate"), std::string::npos);
}

TEST(CommandLine, VersionIsNameAndNumber) { EXPECT_EQ(textOf({"--version"}).rfind("vantrel ", 0), 0U); }

}  // namespace
}  // namespace vantrel::app
