// Settings on a real disk, with processes that write at once, are killed, or are
// not permitted to.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/FileDefaults.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/simulated/Random.h"
#include "support/ChildProcess.h"
#include "support/RandomSeeds.h"
#include "support/RecordingLogSink.h"
#include "support/TemporaryFolder.h"
#include "support/WatchedFileSystem.h"

namespace vantrel::posix {
namespace {

using platform::DefaultsValue;
using test::ChildProcess;
using test::RecordingLogSink;
using test::TemporaryFolder;
using test::WatchedFileSystem;

DefaultsValue integer(std::int64_t value) { return value; }

// Real files, without waiting for the disk: the power stays on here.
class Unsynced : public PosixFileSystem {
  public:
    std::error_code sync(File) override { return {}; }
};

void expectNoLog(const RecordingLogSink& log) { EXPECT_EQ(log.lines(), std::vector<test::LogLine>{}); }

constexpr int keysOfEach = 200;

std::string keyOf(int process, int number) {
    return "process " + std::to_string(process) + " key " + std::to_string(number);
}

void writeKeys(const std::string& folder, int process, const ChildProcess::Report& report) {
    Unsynced system;
    RecordingLogSink log;
    FileDefaults defaults(system, folder, log);
    for (int number = 0; number < keysOfEach; ++number) defaults.set(keyOf(process, number), integer(number));
    for (const test::LogLine& line : log.lines()) report(line.text + "\n");
}

TEST(FileDefaultsProcess, TwoThatWriteAtOnceLoseNoKey) {
    const TemporaryFolder folder;
    ChildProcess one([&](const auto& report) { writeKeys(folder.path(), 1, report); });
    ChildProcess other([&](const auto& report) { writeKeys(folder.path(), 2, report); });
    EXPECT_EQ(one.rest(), "");
    EXPECT_EQ(other.rest(), "");
    EXPECT_EQ(one.wait(), 0);
    EXPECT_EQ(other.wait(), 0);
    PosixFileSystem system;
    RecordingLogSink log;
    FileDefaults defaults(system, folder.path(), log);
    for (const int process : {1, 2}) {
        for (int number = 0; number < keysOfEach; ++number) {
            EXPECT_EQ(defaults.value(keyOf(process, number)), integer(number)) << keyOf(process, number);
        }
    }
    expectNoLog(log);
}

constexpr std::int64_t changesOfSeries = 3;

void makeSeries(FileSystem& system, const std::string& folder) {
    RecordingLogSink log;
    FileDefaults defaults(system, folder, log);
    for (std::int64_t value = 1; value <= changesOfSeries; ++value) defaults.set("counter", integer(value));
}

// Whether the process came to the call at which it was to be killed.
bool wasKilledAt(std::size_t fatalCall, const std::string& folder) {
    ChildProcess child([&](const auto&) {
        PosixFileSystem real;
        std::size_t call = 0;
        WatchedFileSystem system(real, [&](std::string_view, const std::string&) {
            if (call++ == fatalCall) ::raise(SIGKILL);
            return std::error_code();
        });
        makeSeries(system, folder);
    });
    return child.wait() == SIGKILL;
}

TEST(FileDefaultsProcess, BeingKilledBeforeAnySystemCallLeavesAWholeFile) {
    std::int64_t last = 0;
    for (std::size_t call = 0;; ++call) {
        SCOPED_TRACE("killed at call " + std::to_string(call));
        const TemporaryFolder folder;
        folder.put("settings.json", R"({"counter": {"integer": 0}, "other": {"text": "kept"}})");
        const bool wasKilled = wasKilledAt(call, folder.path());
        PosixFileSystem system;
        RecordingLogSink log;
        FileDefaults defaults(system, folder.path(), log);
        const auto counter = defaults.value("counter");
        ASSERT_TRUE(counter == integer(last) || counter == integer(last + 1));
        last = std::get<std::int64_t>(*counter);
        EXPECT_EQ(defaults.value("other"), DefaultsValue("kept"));
        defaults.set("counter", integer(-1));
        defaults.set("next", integer(1));
        EXPECT_EQ(FileDefaults(system, folder.path(), log).value("next"), integer(1));
        expectNoLog(log);
        if (!wasKilled) break;
    }
    EXPECT_EQ(last, changesOfSeries);
}

// A moment that no system call marks.
void spin(std::uint64_t turns) {
    [[maybe_unused]] volatile std::uint64_t seen = 0;
    for (std::uint64_t turn = 0; turn < turns; ++turn) seen = turn;
}

TEST(FileDefaultsProcess, BeingKilledAtAnyMomentLeavesTheOldOrTheNewValue) {
    test::forRandomSeeds(25, [](std::uint64_t seed) {
        simulated::Random random(seed);
        const TemporaryFolder folder;
        folder.put("settings.json", R"({"other": {"text": "kept"}})");
        ChildProcess child([&](const ChildProcess::Report& report) {
            Unsynced system;
            RecordingLogSink log;
            FileDefaults defaults(system, folder.path(), log);
            for (std::int64_t value = 1;; ++value) {
                defaults.set("counter", integer(value));
                report("!");
            }
        });
        std::int64_t told = 0;
        for (std::uint64_t wanted = random.uniform(1, 20); wanted > 0; --wanted, ++told) {
            char byte = 0;
            ASSERT_TRUE(child.readByte(byte));
        }
        spin(random.uniform(0, 200'000));
        child.kill();
        told += static_cast<std::int64_t>(child.rest().size());

        PosixFileSystem system;
        RecordingLogSink log;
        FileDefaults defaults(system, folder.path(), log);
        const auto counter = defaults.value("counter");
        EXPECT_TRUE(counter == integer(told) || counter == integer(told + 1)) << told;
        EXPECT_EQ(defaults.value("other"), DefaultsValue("kept"));
        expectNoLog(log);
    });
}

// The system's administrator may write anywhere: be somebody else.
void becomeOrdinaryUser() {
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0 && (::setgid(nobody) != 0 || ::setuid(nobody) != 0)) ::_exit(1);
}

TEST(FileDefaultsProcess, AFolderThatMayNotBeWrittenIsReadAndLeftAsItIs) {
    const TemporaryFolder folder;
    const std::string text = R"({"a": {"integer": 1}})";
    folder.put("settings.json", text);
    ASSERT_EQ(::chmod(folder.path("settings.json").c_str(), 0644), 0);
    ASSERT_EQ(::chmod(folder.path().c_str(), 0555), 0);
    ChildProcess child([&](const ChildProcess::Report& report) {
        // The folders above may be closed to others.
        if (::chdir(folder.path().c_str()) != 0) ::_exit(1);
        becomeOrdinaryUser();
        PosixFileSystem system;
        RecordingLogSink log;
        FileDefaults defaults(system, ".", log);
        if (defaults.value("a") != integer(1)) report("The value was not read.\n");
        defaults.set("a", integer(2));
        defaults.set("b", integer(3));
        if (defaults.value("a") != integer(2)) report("The change is not in memory.\n");
        for (const test::LogLine& line : log.lines()) report(line.text + "\n");
    });
    EXPECT_EQ(child.rest(),
              "settings: changes stay in memory: opening ./settings.json.lock: Permission denied\n");
    EXPECT_EQ(child.wait(), 0);
    EXPECT_EQ(folder.bytes("settings.json"), text);
    ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
}

TEST(FileDefaultsProcess, AFileThatMayNotBeReadIsLeftAsItIs) {
    const TemporaryFolder folder;
    const std::string text = R"({"a": {"integer": 1}})";
    folder.put("settings.json", text);
    ASSERT_EQ(::chmod(folder.path("settings.json").c_str(), 0), 0);
    ASSERT_EQ(::chmod(folder.path().c_str(), 0777), 0);
    ChildProcess child([&](const ChildProcess::Report& report) {
        if (::chdir(folder.path().c_str()) != 0) ::_exit(1);
        becomeOrdinaryUser();
        PosixFileSystem system;
        RecordingLogSink log;
        FileDefaults defaults(system, ".", log);
        defaults.set("a", integer(2));
        if (defaults.value("a") != integer(2)) report("The change is not in memory.\n");
        for (const test::LogLine& line : log.lines()) report(line.text + "\n");
    });
    EXPECT_EQ(child.rest(), "settings: changes stay in memory: opening ./settings.json: Permission denied\n");
    EXPECT_EQ(child.wait(), 0);
    ASSERT_EQ(::chmod(folder.path("settings.json").c_str(), 0600), 0);
    EXPECT_EQ(folder.bytes("settings.json"), text);
}

void limitFiles(rlim_t bytes) {
    rlimit limit{};
    if (::getrlimit(RLIMIT_FSIZE, &limit) != 0) ::_exit(1);
    limit.rlim_cur = bytes;
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) ::_exit(1);
}

TEST(FileDefaultsProcess, ADiskThatIsFullInTheMiddleOfAWriteLosesNothing) {
    const TemporaryFolder folder;
    const std::string text = R"({"a": {"integer": 1}})";
    folder.put("settings.json", text);
    ChildProcess child([&](const ChildProcess::Report& report) {
        // A file that grows beyond its limit fails as it does on a full disk.
        ::signal(SIGXFSZ, SIG_IGN);
        PosixFileSystem system;
        RecordingLogSink log;
        FileDefaults defaults(system, folder.path(), log);
        limitFiles(100);
        defaults.set("b", std::string(500, 'x'));
        defaults.set("a", integer(2));
        if (folder.bytes("settings.json") != text) report("The file has changed.\n");
        if (folder.bytes("settings.json.new")) report("The temporary file was left.\n");
        if (log.lines().size() != 1) report("The log has not one line.\n");
        limitFiles(10'000);
        defaults.set("c", integer(3));
        if (log.lines().size() != 2) report("The log has not two lines.\n");
    });
    EXPECT_EQ(child.rest(), "");
    EXPECT_EQ(child.wait(), 0);
    PosixFileSystem system;
    RecordingLogSink log;
    FileDefaults defaults(system, folder.path(), log);
    EXPECT_EQ(defaults.value("a"), integer(2));
    EXPECT_EQ(defaults.value("b"), DefaultsValue(std::string(500, 'x')));
    EXPECT_EQ(defaults.value("c"), integer(3));
    expectNoLog(log);
}

TEST(FileDefaultsProcess, ARealFolderInPlaceOfTheFileIsKeptAside) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkdir(folder.path("settings.json").c_str(), 0700), 0);
    folder.put("settings.json/inside", "kept");
    PosixFileSystem system;
    RecordingLogSink log;
    FileDefaults defaults(system, folder.path(), log);
    defaults.set("a", integer(1));
    EXPECT_EQ(FileDefaults(system, folder.path(), log).value("a"), integer(1));
    EXPECT_EQ(folder.bytes("settings.json.damaged-1/inside"), "kept");
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST(FileDefaultsProcess, APipeInPlaceOfTheFileStopsNobody) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(folder.path("settings.json").c_str(), 0600), 0);
    PosixFileSystem system;
    RecordingLogSink log;
    FileDefaults defaults(system, folder.path(), log);
    defaults.set("a", integer(1));
    EXPECT_EQ(FileDefaults(system, folder.path(), log).value("a"), integer(1));
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST(FileDefaultsProcess, AFileInPlaceOfTheFolderIsLeftAsItIs) {
    const TemporaryFolder folder;
    folder.put("state", "not a folder");
    PosixFileSystem system;
    RecordingLogSink log;
    FileDefaults defaults(system, folder.path("state"), log);
    defaults.set("a", integer(1));
    EXPECT_EQ(defaults.value("a"), integer(1));
    EXPECT_EQ(folder.bytes("state"), "not a folder");
    EXPECT_EQ(log.lines().size(), 1U);
}

}  // namespace
}  // namespace vantrel::posix
