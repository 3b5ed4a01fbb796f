// What --state keeps of a story, and what it leaves alone.
#include <array>
#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

#include "app/StoryText.h"
#include "app/VantrelApp.h"
#include "support/TemporaryFolder.h"

namespace vantrel::app {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Arguments = std::vector<std::string>;

const std::string focus = R"({"atMs": 8000, "do": "setFocusInput", "display": 2, "input": "0x11"})";
const std::string restart = R"(, {"atMs": 9000, "do": "quit"}, {"atMs": 10000, "do": "start"})";

class VantrelAppState : public testing::Test {
  protected:
    // Plays these steps on the default desk in virtual time.
    std::string play(const std::string& steps, const Arguments& more = {}) const {
        folder.put("story.json", storyWith(steps, R"(, "desk": "default", "endMs": 20000)"));
        Arguments arguments{"--play", folder.path("story.json"), "--virtual-time"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return run(arguments);
    }
    static std::string run(const Arguments& arguments) {
        std::istringstream input;
        std::ostringstream output;
        std::ostringstream errors;
        EXPECT_EQ(VantrelApp(input, output, errors).run(arguments), 0);
        EXPECT_EQ(errors.str(), "");
        return output.str();
    }
    std::string playWithState(const std::string& steps, const std::string& name = "state") const {
        return play(steps, {"--state", folder.path(name)});
    }
    // The end of the monitor that the steps are about.
    static std::string focusInput(const std::string& output) {
        std::istringstream lines(endOf(output, "Halden HX27"));
        const std::string start = "  focus input: ";
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with(start)) return line.substr(start.size());
        }
        return "not shown";
    }
    // What the log says of settings.
    static std::vector<std::string> complaints(const std::string& output) {
        std::vector<std::string> result;
        std::istringstream lines(output);
        for (std::string line; std::getline(lines, line);) {
            const std::size_t at = line.find("settings: ");
            if (at != std::string::npos) result.push_back(line.substr(at));
        }
        return result;
    }

    const test::TemporaryFolder folder;
};

TEST_F(VantrelAppState, KeepsSettingsForTheNextStory) {
    EXPECT_THAT(complaints(playWithState(focus)), IsEmpty());
    EXPECT_THAT(folder.bytes("state/settings.json").value_or("no file"),
                HasSubstr("\n  \"focusInput.17676-9985-40127001\": {\"integer\":17},\n"));
    EXPECT_EQ(focusInput(playWithState("")), "0x11 HDMI 1");
}

TEST_F(VantrelAppState, MakesTheFolderWithThoseAroundIt) {
    playWithState(focus, "a/b/c");
    EXPECT_EQ(focusInput(playWithState("", "a/b/c/")), "0x11 HDMI 1");
}

TEST_F(VantrelAppState, KeepsSettingsOverARestart) {
    EXPECT_EQ(focusInput(playWithState(focus + restart)), "0x11 HDMI 1");
}

TEST_F(VantrelAppState, KeepsTheSettingsOfEachFolderApart) {
    playWithState(focus, "one");
    EXPECT_EQ(focusInput(playWithState("", "other")), "none");
}

TEST_F(VantrelAppState, RemembersWhatIsTurnedOff) {
    playWithState(R"({"atMs": 8000, "do": "disableOutput", "display": 2})");
    EXPECT_THAT(folder.bytes("state/settings.json").value_or("no file"),
                HasSubstr(R"("disabledDisplays": {"json":[{"id":2,)"));
}

TEST_F(VantrelAppState, LeavesAFileInPlaceOfTheFolderAsItIs) {
    folder.put("state", "mine");
    const std::string output = playWithState(focus);
    EXPECT_EQ(focusInput(output), "0x11 HDMI 1");
    EXPECT_THAT(complaints(output), ElementsAre("settings: changes stay in memory: opening " +
                                                folder.path("state/settings.json") + ": Not a directory"));
    EXPECT_EQ(folder.bytes("state"), "mine");
}

TEST_F(VantrelAppState, KeepsADamagedFileAside) {
    std::filesystem::create_directory(folder.path("state"));
    folder.put("state/settings.json", "garbage");
    const std::string output = playWithState(focus);
    const std::string path = folder.path("state/settings.json");
    EXPECT_THAT(complaints(output), ElementsAre("settings: " + path + " holds no settings: it is kept as " +
                                                path + ".damaged-1"));
    EXPECT_EQ(folder.bytes("state/settings.json.damaged-1"), "garbage");
    EXPECT_EQ(focusInput(playWithState("")), "0x11 HDMI 1");
}

TEST_F(VantrelAppState, BeginsTheOutputWithTheStoryAlsoWhenTheFileIsDamaged) {
    std::filesystem::create_directory(folder.path("state"));
    folder.put("state/settings.json", "");
    EXPECT_THAT(playWithState(""), testing::StartsWith("T\nDesk: Default\n\n      0.000 s  error    display  "
                                                       "settings: "));
}

TEST_F(VantrelAppState, IsOfNoUseToTheProbe) {
    const Arguments probe{"--probe", "--simulate", "--virtual-time"};
    Arguments withState = probe;
    withState.insert(withState.end(), {"--state", folder.path("state")});
    EXPECT_EQ(run(withState), run(probe));
    EXPECT_FALSE(std::filesystem::exists(folder.path("state")));
}

// The places that the environment names.
class UsersFolders {
  public:
    explicit UsersFolders(const std::string& path) {
        for (const char* name : names) {
            const char* value = std::getenv(name);
            before_.push_back(value != nullptr ? std::optional<std::string>(value) : std::nullopt);
            ::setenv(name, path.c_str(), 1);
        }
    }
    ~UsersFolders() {
        for (std::size_t index = 0; index < names.size(); ++index) {
            if (before_[index]) {
                ::setenv(names[index], before_[index]->c_str(), 1);
            } else {
                ::unsetenv(names[index]);
            }
        }
    }
    UsersFolders(const UsersFolders&) = delete;
    UsersFolders& operator=(const UsersFolders&) = delete;

  private:
    static constexpr std::array names{"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"};
    std::vector<std::optional<std::string>> before_;
};

TEST_F(VantrelAppState, LeftOutNeitherReadsNorWritesAnything) {
    const std::string untouched = play(focus + restart);
    EXPECT_EQ(focusInput(untouched), "0x11 HDMI 1");
    const test::TemporaryFolder home;
    const UsersFolders users(home.path());
    const std::string settings = R"({"focusInput.17676-9985-40127001": {"integer": 18}})";
    for (const std::string place : {"vantrel", "vantrel/simulated", ".config/vantrel"}) {
        std::filesystem::create_directories(home.path(place));
        home.put(place + "/settings.json", settings);
    }
    EXPECT_EQ(play(focus + restart), untouched);
    EXPECT_EQ(focusInput(play("")), "none");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(home.path())) {
        if (entry.is_directory()) continue;
        EXPECT_EQ(entry.path().filename(), "settings.json");
        EXPECT_EQ(entry.file_size(), settings.size());
    }
}

}  // namespace
}  // namespace vantrel::app
