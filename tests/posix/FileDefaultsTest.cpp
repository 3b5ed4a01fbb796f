#include <gtest/gtest.h>

#include "platform/posix/FileDefaults.h"
#include "support/FakeDisk.h"
#include "support/RecordingLogSink.h"
#include "support/WatchedFileSystem.h"

namespace vantrel::posix {
namespace {

using platform::DefaultsData;
using platform::DefaultsDictionary;
using platform::DefaultsValue;
using platform::LogLevel;
using test::FakeDisk;
using test::LogLine;
using test::WatchedFileSystem;

constexpr const char* path = "/state/settings.json";

LogLine line(LogLevel level, const std::string& text) {
    return {"org.vantrel.Vantrel", "display", level, "settings: " + text};
}

DefaultsValue integer(std::int64_t value) { return value; }

class FileDefaultsTest : public testing::Test {
  protected:
    FileDefaults open() { return FileDefaults(system, "/state", log); }
    std::string keptText() const { return disk.bytes(path).value_or("no file"); }

    FakeDisk disk{"/state"};
    // The outcome of the named call from now on.
    std::string failingCall;
    std::errc error = std::errc::io_error;
    WatchedFileSystem system{disk, [this](std::string_view call, const std::string&) {
                                 return call == failingCall ? std::make_error_code(error) : std::error_code();
                             }};
    test::RecordingLogSink log;
};

TEST_F(FileDefaultsTest, KeepsEveryTypeOfValue) {
    const std::map<std::string, DefaultsValue> values{
        {"data", DefaultsData{"[20,[5,8]]"}},
        {"bytes", DefaultsData{std::string("\0\xFF", 2)}},
        {"integer", integer(-17)},
        {"text", std::string("automatic")},
        {"dictionary", DefaultsDictionary{{"brightness", 0.25}, {"name", std::string("Desk")}}}};
    FileDefaults written = open();
    for (const auto& [key, value] : values) written.set(key, value);
    FileDefaults read = open();
    for (const auto& [key, value] : values) EXPECT_EQ(read.value(key), value) << key;
    EXPECT_EQ(log.lines(), std::vector<LogLine>{});
}

TEST_F(FileDefaultsTest, HasNoValueForAKeyThatIsNotThere) {
    EXPECT_EQ(open().value("focusInput"), std::nullopt);
}

TEST_F(FileDefaultsTest, RemovesAKeyFromTheFile) {
    FileDefaults defaults = open();
    defaults.set("a", integer(1));
    defaults.set("b", integer(2));
    defaults.remove("a");
    EXPECT_EQ(defaults.value("a"), std::nullopt);
    EXPECT_EQ(keptText(), "{\n  \"b\": {\"integer\":2}\n}\n");
}

TEST_F(FileDefaultsTest, MakesNoFileBeforeTheFirstChange) {
    open().remove("nothing");
    EXPECT_EQ(keptText(), "no file");
}

TEST_F(FileDefaultsTest, WritesNothingWhenNothingChanges) {
    FileDefaults defaults = open();
    defaults.set("a", integer(1));
    failingCall = "write";
    defaults.set("a", integer(1));
    EXPECT_EQ(log.lines(), std::vector<LogLine>{});
}

TEST_F(FileDefaultsTest, TwoProgramsKeepEachOthersKeys) {
    FileDefaults one = open();
    FileDefaults other = open();
    one.set("a", integer(1));
    other.set("b", integer(2));
    one.set("c", integer(3));
    other.remove("a");
    EXPECT_EQ(keptText(), "{\n  \"b\": {\"integer\":2},\n  \"c\": {\"integer\":3}\n}\n");
}

TEST_F(FileDefaultsTest, SeesWhatAnotherProgramWroteAfterItsOwnChange) {
    FileDefaults one = open();
    FileDefaults other = open();
    one.set("a", integer(1));
    other.set("b", integer(2));
    EXPECT_EQ(other.value("a"), integer(1));
}

TEST_F(FileDefaultsTest, KeepsWhatALaterVersionWrote) {
    disk.put(path, R"({"later": {"date": "2031-01-01"}, "a": {"integer": 1}})");
    FileDefaults defaults = open();
    EXPECT_EQ(defaults.value("later"), std::nullopt);
    defaults.set("a", integer(2));
    EXPECT_EQ(keptText(), "{\n  \"a\": {\"integer\":2},\n  \"later\": {\"date\":\"2031-01-01\"}\n}\n");
    EXPECT_EQ(log.lines(), std::vector<LogLine>{});
}

class DamagedFile : public FileDefaultsTest,
                    public testing::WithParamInterface<std::pair<const char*, const char*>> {};

TEST_P(DamagedFile, IsKeptAsideAndSaidOnce) {
    const auto [bytes, how] = GetParam();
    disk.put(path, bytes);
    FileDefaults defaults = open();
    EXPECT_EQ(defaults.value("a"), std::nullopt);
    EXPECT_EQ(disk.bytes("/state/settings.json.damaged-1"), bytes);
    EXPECT_EQ(keptText(), "no file");
    defaults.set("a", integer(1));
    EXPECT_EQ(open().value("a"), integer(1));
    EXPECT_EQ(log.lines(),
              (std::vector<LogLine>{line(LogLevel::error, std::string("/state/settings.json ") + how +
                                                              ": it is kept as "
                                                              "/state/settings.json.damaged-1")}));
}

INSTANTIATE_TEST_SUITE_P(FileDefaults, DamagedFile,
                         testing::Values(std::pair("", "is empty"),
                                         std::pair("{\"a\": {\"int", "holds no settings"),
                                         std::pair("[1, 2]", "holds no settings"),
                                         std::pair("\x7F"
                                                   "ELF\xFF\xFE",
                                                   "holds no settings")));

TEST_F(FileDefaultsTest, MovesAFolderInPlaceOfTheFileAside) {
    disk = FakeDisk("/state/settings.json");
    FileDefaults defaults = open();
    defaults.set("a", integer(1));
    EXPECT_EQ(open().value("a"), integer(1));
    EXPECT_TRUE(disk.bytes("/state/settings.json.damaged-1"));
    EXPECT_EQ(log.lines(), (std::vector<LogLine>{line(LogLevel::error,
                                                      "/state/settings.json is a folder: it is kept as "
                                                      "/state/settings.json.damaged-1")}));
}

TEST_F(FileDefaultsTest, NeverReplacesAnEarlierDamagedFile) {
    disk.put("/state/settings.json.damaged-1", "earlier");
    disk.put(path, "later");
    open();
    EXPECT_EQ(disk.bytes("/state/settings.json.damaged-1"), "earlier");
    EXPECT_EQ(disk.bytes("/state/settings.json.damaged-2"), "later");
}

TEST_F(FileDefaultsTest, RestoresAFileThatIsDamagedWhileItRuns) {
    FileDefaults defaults = open();
    defaults.set("a", integer(1));
    disk.put(path, "garbage");
    defaults.set("b", integer(2));
    EXPECT_EQ(open().value("a"), integer(1));
    EXPECT_EQ(open().value("b"), integer(2));
    EXPECT_EQ(disk.bytes("/state/settings.json.damaged-1"), "garbage");
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST_F(FileDefaultsTest, RestoresAFileThatIsDeletedWhileItRuns) {
    FileDefaults defaults = open();
    defaults.set("a", integer(1));
    disk = FakeDisk("/");
    defaults.set("b", integer(2));
    EXPECT_EQ(open().value("a"), integer(1));
    EXPECT_EQ(open().value("b"), integer(2));
}

TEST_F(FileDefaultsTest, LeavesADamagedFileThatCannotBeMovedAsItIs) {
    disk.put(path, "garbage");
    failingCall = "rename";
    error = std::errc::read_only_file_system;
    FileDefaults defaults = open();
    defaults.set("a", integer(1));
    EXPECT_EQ(defaults.value("a"), integer(1));
    EXPECT_EQ(keptText(), "garbage");
    EXPECT_EQ(
        log.lines(),
        (std::vector<LogLine>{line(LogLevel::error,
                                   "changes stay in memory: /state/settings.json holds no settings; "
                                   "renaming to /state/settings.json.damaged-1: Read-only file system")}));
}

TEST_F(FileDefaultsTest, LeavesAFileThatCannotBeReadAsItIs) {
    disk.put(path, R"({"b": {"integer": 2}})");
    failingCall = "read";
    FileDefaults defaults = open();
    EXPECT_EQ(defaults.value("b"), std::nullopt);
    defaults.set("a", integer(1));
    EXPECT_EQ(defaults.value("a"), integer(1));
    EXPECT_EQ(keptText(), R"({"b": {"integer": 2}})");
    EXPECT_EQ(
        log.lines(),
        (std::vector<LogLine>{line(
            LogLevel::error, "changes stay in memory: reading /state/settings.json: Input/output error")}));
}

TEST_F(FileDefaultsTest, FindsItsValuesOnceTheFileCanBeRead) {
    disk.put(path, R"({"b": {"integer": 2}})");
    failingCall = "read";
    FileDefaults defaults = open();
    failingCall = "";
    defaults.set("a", integer(1));
    EXPECT_EQ(defaults.value("b"), integer(2));
    EXPECT_EQ(keptText(), "{\n  \"a\": {\"integer\":1},\n  \"b\": {\"integer\":2}\n}\n");
}

TEST_F(FileDefaultsTest, ReadsAReadOnlyFileAndLeavesItAsItIs) {
    const std::string text = R"({"a": {"integer": 1}})";
    disk.put(path, text, {FileSystem::Kind::file, true});
    FileDefaults defaults = open();
    EXPECT_EQ(defaults.value("a"), integer(1));
    defaults.set("a", integer(2));
    EXPECT_EQ(defaults.value("a"), integer(2));
    EXPECT_EQ(keptText(), text);
    EXPECT_EQ(log.lines(),
              (std::vector<LogLine>{
                  line(LogLevel::error, "changes stay in memory: /state/settings.json is read-only")}));
}

TEST_F(FileDefaultsTest, LosesNothingOnAFullDisk) {
    FileDefaults defaults = open();
    defaults.set("a", integer(1));
    defaults.set("b", integer(2));
    const std::string before = keptText();
    failingCall = "write";
    error = std::errc::no_space_on_device;
    defaults.set("a", integer(3));
    defaults.remove("b");
    EXPECT_EQ(keptText(), before);
    EXPECT_EQ(defaults.value("a"), integer(3));
    EXPECT_EQ(defaults.value("b"), std::nullopt);
}

TEST_F(FileDefaultsTest, SaysOnceThatChangesStayInMemory) {
    failingCall = "open";
    error = std::errc::permission_denied;
    FileDefaults defaults(system, "/state", log);
    for (int value = 0; value < 3; ++value) defaults.set("a", integer(value));
    EXPECT_EQ(log.lines(), (std::vector<LogLine>{line(LogLevel::error,
                                                      "changes stay in memory: opening "
                                                      "/state/settings.json: Permission denied")}));
}

TEST_F(FileDefaultsTest, KeepsEarlierChangesWithALaterOne) {
    FileDefaults defaults = open();
    defaults.set("a", integer(1));
    failingCall = "sync";
    defaults.set("b", integer(2));
    defaults.remove("a");
    failingCall = "";
    defaults.set("c", integer(3));
    EXPECT_EQ(keptText(), "{\n  \"b\": {\"integer\":2},\n  \"c\": {\"integer\":3}\n}\n");
    EXPECT_EQ(log.lines(),
              (std::vector<LogLine>{
                  line(LogLevel::error,
                       "changes stay in memory: syncing /state/settings.json.new: Input/output error"),
                  line(LogLevel::standard, "changes are kept again in /state/settings.json")}));
}

TEST_F(FileDefaultsTest, WritesAgainWhatALossOfPowerCouldStillTake) {
    int syncs = 0;
    WatchedFileSystem unsynced(disk, [&](std::string_view call, const std::string&) {
        // The folder's, after the file's own.
        const bool fails = call == "sync" && ++syncs == 2;
        return fails ? std::make_error_code(std::errc::io_error) : std::error_code();
    });
    FileDefaults defaults(unsynced, "/state", log);
    defaults.set("a", integer(1));
    defaults.set("a", integer(1));
    for (FakeDisk& left : disk.afterPowerLoss()) {
        EXPECT_EQ(FileDefaults(left, "/state", log).value("a"), integer(1));
    }
    EXPECT_EQ(log.lines().size(), 2U);
}

TEST_F(FileDefaultsTest, TellsOfEachTimeThatChangesCannotBeKept) {
    FileDefaults defaults = open();
    for (const auto& [first, second] : {std::pair(1, 2), std::pair(3, 4)}) {
        failingCall = "rename";
        defaults.set("a", integer(first));
        failingCall = "";
        defaults.set("a", integer(second));
    }
    EXPECT_EQ(log.lines().size(), 4U);
}

TEST_F(FileDefaultsTest, KeepsOthersKeysWithEarlierChanges) {
    FileDefaults one = open();
    FileDefaults other = open();
    failingCall = "write";
    one.set("a", integer(1));
    failingCall = "";
    other.set("b", integer(2));
    one.set("c", integer(3));
    EXPECT_EQ(one.value("b"), integer(2));
    EXPECT_EQ(open().value("a"), integer(1));
    EXPECT_EQ(open().value("b"), integer(2));
}

}  // namespace
}  // namespace vantrel::posix
