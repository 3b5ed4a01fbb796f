#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "app/VantrelApp.h"
#include "platform/simulated/ShippedDesks.h"

namespace vantrel::app {
namespace {

struct Outcome {
    int status;
    std::string output;
    std::string errors;
};

Outcome run(const std::vector<std::string>& arguments, const std::string& standardInput = "") {
    std::istringstream input(standardInput);
    std::ostringstream output;
    std::ostringstream errors;
    const int status = VantrelApp(input, output, errors).run(arguments);
    return {status, output.str(), errors.str()};
}

class Folder {
  public:
    Folder() : path_(std::filesystem::path(testing::TempDir()) / "vantrel-app-test") {
        std::filesystem::create_directories(path_);
    }
    ~Folder() { std::filesystem::remove_all(path_); }
    std::string file(const std::string& name, const std::string& text) const {
        std::ofstream(path_ / name, std::ios::binary) << text;
        return (path_ / name).string();
    }
    std::string path() const { return path_.string(); }

  private:
    std::filesystem::path path_;
};

TEST(VantrelApp, ProbesEveryShippedDesk) {
    for (const auto& desk : simulated::ShippedDesks::list()) {
        const Outcome outcome = run({"--simulate", std::string(desk.name), "--virtual-time", "--probe"});
        EXPECT_EQ(outcome.status, 0) << desk.name;
        EXPECT_EQ(outcome.output.rfind("External AV services: ", 0), 0U) << desk.name;
        EXPECT_EQ(outcome.errors, "") << desk.name;
    }
}

TEST(VantrelApp, ProbesTheDefaultDeskWithoutAFile) {
    const Outcome byDefault = run({"--simulate", "--virtual-time", "--probe"});
    EXPECT_EQ(byDefault.output, run({"--simulate", "default", "--virtual-time", "--probe"}).output);
    EXPECT_NE(byDefault.output.find("External AV services: 4\n"), std::string::npos);
    EXPECT_NE(
        byDefault.output.find("Input profile: 0x0F, 0x11, 0x12 · read map 1 → 0x11, 3 → 0x0F, 4 → 0x12\n"),
        std::string::npos);
    EXPECT_NE(byDefault.output.find("Current input: raw 3 → DisplayPort 1\n"), std::string::npos);
    EXPECT_NE(byDefault.output.find("Capabilities: <none>\n"), std::string::npos);
}

TEST(VantrelApp, PrintsTheSameProbeEveryTime) {
    const std::vector<std::string> arguments{"--simulate", "hostile", "--virtual-time",
                                             "--probe",    "--log",   "debug"};
    const Outcome first = run(arguments);
    const Outcome second = run(arguments);
    EXPECT_EQ(first.output, second.output);
    EXPECT_EQ(first.errors, second.errors);
}

TEST(VantrelApp, ShowsTheLogFromTheLevelOn) {
    const Outcome all = run({"--simulate", "--virtual-time", "--probe", "--log", "debug"});
    const Outcome lasting = run({"--simulate", "--virtual-time", "--probe", "--log", "error"});
    EXPECT_NE(all.errors.find(" Debug   vantrel: [org.vantrel.Vantrel:ddc] "), std::string::npos);
    EXPECT_NE(all.errors.find(" Default vantrel: [org.vantrel.Vantrel:ddc] "), std::string::npos);
    EXPECT_EQ(lasting.errors.find(" Debug "), std::string::npos);
    EXPECT_EQ(lasting.errors.find(" Default "), std::string::npos);
    EXPECT_NE(lasting.errors.find(" Error   vantrel: [org.vantrel.Vantrel:ddc] "), std::string::npos);
    EXPECT_EQ(all.output, lasting.output);
}

TEST(VantrelApp, AnswersAMistakeWithOneLineAndStatusTwo) {
    const Outcome outcome = run({"--nonsense"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "vantrel: The following argument was not expected: --nonsense (see --help)\n");
}

TEST(VantrelApp, HelpAndVersionGoToTheOutput) {
    EXPECT_EQ(run({"--help"}).status, 0);
    EXPECT_EQ(run({"--help"}).errors, "");
    EXPECT_EQ(run({"--version"}).status, 0);
    EXPECT_EQ(run({"--version"}).output.rfind("vantrel ", 0), 0U);
}

TEST(VantrelApp, RunsADeskFileOfTheUsers) {
    const Folder folder;
    const std::string file = folder.file("empty desk.json", R"({"title": "Empty", "displays": []})");
    const Outcome outcome = run({"--simulate", file, "--virtual-time", "--probe"});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(outcome.output, "External AV services: 0\n");
}

TEST(VantrelApp, NamesFilePlaceAndReasonOfAMistakeInADeskFile) {
    const Folder folder;
    const std::string file = folder.file("desk.json", R"({"title": "X", "displays": [], "colour": 1})");
    const Outcome outcome = run({"--simulate", file, "--probe"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors.rfind("vantrel: " + file + ": ", 0), 0U) << outcome.errors;
    EXPECT_NE(outcome.errors.find("colour"), std::string::npos) << outcome.errors;
    EXPECT_EQ(outcome.errors.find('\n'), outcome.errors.size() - 1);
}

TEST(VantrelApp, ListsTheShippedDesksWhenNeitherDeskNorFileIsFound) {
    const Outcome outcome = run({"--simulate", "defalt", "--probe"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_NE(outcome.errors.find("defalt"), std::string::npos);
    EXPECT_NE(outcome.errors.find("twins"), std::string::npos);
    EXPECT_EQ(outcome.errors.find('\n'), outcome.errors.size() - 1);
}

TEST(VantrelApp, PlaysAShippedStoryOnItsOwnDesk) {
    const Outcome outcome = run({"--play", "return-good", "--virtual-time"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output.rfind("Back from a good monitor\n", 0), 0U);
    EXPECT_NE(outcome.output.find("\nDesk: Default\n"), std::string::npos);
    EXPECT_NE(outcome.output.find("\nHalden HX27 (id 2)\n"), std::string::npos);
}

TEST(VantrelApp, PlaysAStoryOnAnotherDesk) {
    const Outcome outcome = run({"--simulate", "slow", "--play", "return-good", "--virtual-time"});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_NE(outcome.output.find("\nDesk: Slow switcher\n"), std::string::npos);
}

TEST(VantrelApp, TakesTheStorysDeskWhenSimulateNamesNone) {
    EXPECT_EQ(run({"--simulate", "--play", "wake", "--virtual-time"}).output,
              run({"--play", "wake", "--virtual-time"}).output);
}

TEST(VantrelApp, TakesTheDefaultDeskWhenNeitherStoryNorSimulateNamesOne) {
    const Folder folder;
    const std::string file = folder.file("story.json", R"({"title": "T", "steps": []})");
    const Outcome outcome = run({"--simulate", "--play", file, "--virtual-time"});
    EXPECT_NE(outcome.output.find("\nDesk: Default\n"), std::string::npos) << outcome.errors;
}

TEST(VantrelApp, WantsADeskForAStoryWithoutOne) {
    const Folder folder;
    const std::string file = folder.file("story.json", R"({"title": "T", "steps": []})");
    const Outcome outcome = run({"--play", file, "--virtual-time"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "vantrel: " + file + ": names no desk; use --simulate DESK (see --help)\n");
}

TEST(VantrelApp, ShowsAStorysLogFromTheLevelOn) {
    const Outcome all = run({"--play", "return-good", "--virtual-time", "--log", "debug"});
    EXPECT_NE(all.output.find(" s  debug    ddc "), std::string::npos);
    EXPECT_EQ(all.errors, "");
    const Outcome few = run({"--play", "return-good", "--virtual-time", "--log", "fault"});
    EXPECT_EQ(few.output.find(" s  default "), std::string::npos);
}

TEST(VantrelApp, NamesFilePlaceAndReasonOfAMistakeInAStory) {
    const Folder folder;
    const std::string file =
        folder.file("story.json", R"({"title": "T", "steps": [{"atMs": 0, "do": "jump"}]})");
    const Outcome outcome = run({"--simulate", "--play", file});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "vantrel: " + file + ": steps[0].do: \"jump\" is not an action\n");
}

TEST(VantrelApp, NamesThePlaceInAStoryThatTheDeskDoesNotFit) {
    const Outcome outcome = run({"--simulate", "twins", "--play", "output-dead"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors,
              "vantrel: stories/output-dead.json: steps[0].display: the desk \"Twins\" has no display 5\n");
}

TEST(VantrelApp, ListsTheShippedStoriesWhenNeitherStoryNorFileIsFound) {
    const Outcome outcome = run({"--play", "retrun"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(
        outcome.errors.rfind("vantrel: there is no story file retrun, and no story of that name among ", 0),
        0U);
    EXPECT_NE(outcome.errors.find("return-good"), std::string::npos);
    EXPECT_EQ(outcome.errors.find('\n'), outcome.errors.size() - 1);
}

TEST(VantrelApp, MissesTheDeskOfAStory) {
    EXPECT_NE(run({"--simulate", "defalt", "--play", "wake"}).errors.find("there is no desk file defalt"),
              std::string::npos);
}

TEST(VantrelApp, ParsesCapabilitiesFromStandardInput) {
    const Outcome outcome = run({"--parse-capabilities"}, "(model(X1)vcp(10 14(05 08)))");
    EXPECT_EQ(outcome.status, 0);
    const std::string json =
        R"json({"raw":"(model(X1)vcp(10 14(05 08)))","model":"X1","codes":[16,20],"values":[20,[5,8]]})json";
    EXPECT_EQ(outcome.output, json + "\n");
}

TEST(VantrelApp, ParsesCapabilitiesFromAFile) {
    const Folder folder;
    const Outcome outcome = run({"--parse-capabilities", folder.file("raw", "vcp(10)\n")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "{\"raw\":\"vcp(10)\",\"codes\":[16],\"values\":[]}\n");
}

TEST(VantrelApp, NamesACapabilitiesFileThatItCantRead) {
    const Folder folder;
    const std::string missing = folder.path() + "/missing";
    EXPECT_EQ(run({"--parse-capabilities", missing}).status, 2);
    EXPECT_EQ(run({"--parse-capabilities", missing}).errors, "vantrel: can't read " + missing + "\n");
    EXPECT_EQ(run({"--parse-capabilities", folder.path()}).status, 2);
    EXPECT_EQ(run({"--parse-capabilities", folder.path()}).errors,
              "vantrel: can't read " + folder.path() + "\n");
}

}  // namespace
}  // namespace vantrel::app
