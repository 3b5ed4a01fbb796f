// A series of changes, with something going wrong at each of its system calls.
#include <gtest/gtest.h>
#include <ostream>

#include "platform/posix/FileDefaults.h"
#include "support/FakeDisk.h"
#include "support/RecordingLogSink.h"
#include "support/WatchedFileSystem.h"

namespace vantrel::posix {
namespace {

using platform::DefaultsValue;
using test::FakeDisk;
using test::RecordingLogSink;
using test::WatchedFileSystem;

using Values = std::map<std::string, DefaultsValue>;
using Change = std::pair<std::string, std::optional<DefaultsValue>>;

constexpr const char* folder = "/ann/.config/vantrel";
constexpr const char* path = "/ann/.config/vantrel/settings.json";
constexpr const char* storedText =
    R"({"stored": {"integer": 17}, "a": {"text": "old"}, "later": {"date": "2031-01-01"}})";
constexpr const char* garbage = "\x01\x02 no settings";

// What the disk holds when the program starts.
struct Start {
    const char* name;
    FakeDisk disk;
    Values values;
};

void PrintTo(const Start& start, std::ostream* stream) { *stream << start.name; }

FakeDisk with(const std::string& bytes) {
    FakeDisk disk(folder);
    disk.put(path, bytes);
    return disk;
}

std::vector<Start> starts() {
    return {{"no folder", FakeDisk("/ann"), {}},
            {"no file", FakeDisk(folder), {}},
            {"stored", with(storedText), {{"stored", std::int64_t{17}}, {"a", "old"}}},
            {"garbage", with(garbage), {}}};
}

const std::vector<Change>& changes() {
    static const std::vector<Change> all{{"a", std::int64_t{1}},
                                         {"capabilities", platform::DefaultsData{std::string(100, 'x')}},
                                         {"a", std::nullopt},
                                         {"capabilities", platform::DefaultsData{"[20,[5,8]]"}},
                                         {"software", platform::DefaultsDictionary{{"brightness", 0.5}}}};
    return all;
}

// The values after each number of changes.
std::vector<Values> states(Values values) {
    std::vector<Values> all{values};
    for (const auto& [key, value] : changes()) {
        if (value) {
            values.insert_or_assign(key, *value);
        } else {
            values.erase(key);
        }
        all.push_back(values);
    }
    return all;
}

void make(FileDefaults& defaults, const Change& change) {
    if (change.second) {
        defaults.set(change.first, *change.second);
    } else {
        defaults.remove(change.first);
    }
}

Values valuesOf(FileDefaults& defaults) {
    Values values;
    for (const char* key : {"stored", "a", "capabilities", "software"}) {
        if (const auto value = defaults.value(key)) values.emplace(key, *value);
    }
    return values;
}

std::size_t count(const RecordingLogSink& log, std::string_view text) {
    std::size_t count = 0;
    for (const auto& line : log.lines()) count += line.text.find(text) != std::string::npos ? 1 : 0;
    return count;
}

bool holds(const FakeDisk& disk, std::string_view bytes) {
    for (const std::string& name : disk.paths()) {
        if (disk.bytes(name).value_or("").find(bytes) != std::string::npos) return true;
    }
    return false;
}

// Starts the program again on that disk; what it finds is one of the two states,
// nothing else has gone, and it works on.
void expectOldOrNew(FakeDisk disk, const Start& start, const Values& oldValues, const Values& newValues) {
    const bool isGarbage = std::string_view(start.name) == "garbage";
    RecordingLogSink log;
    FileDefaults defaults(disk, folder, log);
    const Values found = valuesOf(defaults);
    EXPECT_TRUE(found == oldValues || found == newValues) << disk.bytes(path).value_or("no file");
    EXPECT_TRUE(!isGarbage || holds(disk, garbage));
    EXPECT_TRUE(std::string_view(start.name) != "stored" || holds(disk, "2031-01-01"));
    EXPECT_EQ(count(log, "") - count(log, isGarbage ? "holds no settings: it is kept as" : "nothing"), 0U);
    defaults.set("next", std::int64_t{1});
    EXPECT_EQ(FileDefaults(disk, folder, log).value("next"), DefaultsValue(std::int64_t{1}));
}

class FileDefaultsCrash : public testing::TestWithParam<Start> {
  protected:
    // The number of calls that the whole series makes.
    std::size_t callsOfSeries() const {
        std::size_t calls = 0;
        FakeDisk disk = start.disk;
        WatchedFileSystem system(disk, [&](std::string_view, const std::string&) {
            ++calls;
            return std::error_code();
        });
        RecordingLogSink log;
        FileDefaults defaults(system, folder, log);
        for (const Change& change : changes()) make(defaults, change);
        return calls;
    }

    const Start& start = GetParam();
    const std::vector<Values> expected = states(start.values);
};

TEST_P(FileDefaultsCrash, ALossOfPowerBeforeAnyCallLeavesTheOldOrTheNewValue) {
    FakeDisk disk = start.disk;
    std::size_t made = 0;
    std::size_t outcomes = 0;
    WatchedFileSystem system(disk, [&](std::string_view call, const std::string& file) {
        SCOPED_TRACE("change " + std::to_string(made) + ", before " + std::string(call) + " " + file);
        const Values& next = expected[std::min(made + 1, changes().size())];
        for (const FakeDisk& left : disk.afterPowerLoss()) {
            expectOldOrNew(left, start, expected[made], next);
            ++outcomes;
        }
        return std::error_code();
    });
    RecordingLogSink log;
    FileDefaults defaults(system, folder, log);
    for (const Change& change : changes()) {
        make(defaults, change);
        ++made;
        SCOPED_TRACE("after change " + std::to_string(made));
        for (const FakeDisk& left : disk.afterPowerLoss()) {
            expectOldOrNew(left, start, expected[made], expected[made]);
        }
    }
    // Several calls for each change, several disks for most of them.
    EXPECT_GT(outcomes, 20 * changes().size());
}

TEST_P(FileDefaultsCrash, TheEndOfTheProgramBeforeAnyCallLeavesTheOldOrTheNewValue) {
    FakeDisk disk = start.disk;
    std::size_t made = 0;
    WatchedFileSystem system(disk, [&](std::string_view call, const std::string& file) {
        SCOPED_TRACE("change " + std::to_string(made) + ", before " + std::string(call) + " " + file);
        const Values& next = expected[std::min(made + 1, changes().size())];
        expectOldOrNew(disk.afterProgramEnd(), start, expected[made], next);
        return std::error_code();
    });
    RecordingLogSink log;
    FileDefaults defaults(system, folder, log);
    for (const Change& change : changes()) {
        make(defaults, change);
        ++made;
    }
}

constexpr std::errc errors[] = {std::errc::io_error, std::errc::no_space_on_device,
                                std::errc::permission_denied, std::errc::no_such_file_or_directory};

TEST_P(FileDefaultsCrash, OneFailingCallLosesNothing) {
    const std::size_t calls = callsOfSeries();
    for (const std::errc error : errors) {
        for (std::size_t failing = 0; failing < calls; ++failing) {
            SCOPED_TRACE(std::make_error_code(error).message() + " at call " + std::to_string(failing));
            FakeDisk disk = start.disk;
            std::size_t call = 0;
            WatchedFileSystem system(disk, [&](std::string_view, const std::string&) {
                return call++ == failing ? std::make_error_code(error) : std::error_code();
            });
            RecordingLogSink log;
            FileDefaults defaults(system, folder, log);
            for (const Change& change : changes()) make(defaults, change);
            EXPECT_LE(count(log, "changes stay in memory"), 1U);
            // The last change may be the one that failed.
            make(defaults, {"next", std::int64_t{1}});
            EXPECT_EQ(valuesOf(defaults), expected.back());
            expectOldOrNew(disk.afterProgramEnd(), start, expected.back(), expected.back());
            for (const FakeDisk& left : disk.afterPowerLoss()) {
                expectOldOrNew(left, start, expected.back(), expected.back());
            }
        }
    }
}

TEST_P(FileDefaultsCrash, FailuresThatDoNotEndLoseNothingThatWasKept) {
    const std::size_t calls = callsOfSeries();
    for (const std::errc error : errors) {
        for (std::size_t first = 0; first < calls; ++first) {
            SCOPED_TRACE(std::make_error_code(error).message() + " from call " + std::to_string(first));
            FakeDisk disk = start.disk;
            std::size_t call = 0;
            std::size_t made = 0;
            std::size_t kept = 0;
            WatchedFileSystem system(disk, [&](std::string_view, const std::string&) {
                if (call++ < first) return std::error_code();
                return std::make_error_code(error);
            });
            RecordingLogSink log;
            FileDefaults defaults(system, folder, log);
            for (const Change& change : changes()) {
                make(defaults, change);
                ++made;
                if (call <= first) kept = made;
            }
            // In memory the changes are made all the same; an unread file is not seen.
            EXPECT_EQ(defaults.value("software"), changes().back().second);
            EXPECT_EQ(defaults.value("a"), std::nullopt);
            EXPECT_LE(count(log, "changes stay in memory"), 1U);
            const Values& next = expected[std::min(kept + 1, changes().size())];
            for (const FakeDisk& left : disk.afterPowerLoss()) {
                expectOldOrNew(left, start, expected[kept], next);
            }
        }
    }
}

std::string nameOf(const testing::TestParamInfo<Start>& info) {
    std::string name = info.param.name;
    std::erase(name, ' ');
    return name;
}

INSTANTIATE_TEST_SUITE_P(From, FileDefaultsCrash, testing::ValuesIn(starts()), nameOf);

}  // namespace
}  // namespace vantrel::posix
