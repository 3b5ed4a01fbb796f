#include <gtest/gtest.h>

#include "platform/posix/StateFile.h"
#include "support/FakeDisk.h"
#include "support/WatchedFileSystem.h"

namespace vantrel::posix {
namespace {

using test::FakeDisk;
using test::WatchedFileSystem;

std::string textOf(StateFile& file) {
    const auto reading = file.read();
    const auto* contents = std::get_if<StateFile::Contents>(&reading);
    return contents != nullptr ? contents->text : "no contents";
}

std::string damageOf(StateFile& file) {
    const auto reading = file.read();
    const auto* damaged = std::get_if<StateFile::Damaged>(&reading);
    return damaged != nullptr ? damaged->how : "no damage";
}

template <class Outcome>
std::string failureOf(const Outcome& outcome) {
    const auto* failure = std::get_if<StateFile::Failure>(&outcome);
    return failure != nullptr ? failure->why : "no failure";
}

// Lets the named call fail every time.
WatchedFileSystem::Before failing(std::string_view call, std::errc error) {
    return [=](std::string_view made, const std::string&) {
        return made == call ? std::make_error_code(error) : std::error_code();
    };
}

TEST(StateFile, ReadsWhatItWasReplacedWith) {
    FakeDisk disk("/state");
    StateFile file(disk, "/state", "name");
    const auto lock = file.lock();
    // More than is read or written at once.
    const std::string text(200'000, 'x');
    EXPECT_EQ(failureOf(file.replace(text)), "no failure");
    EXPECT_EQ(textOf(file), text);
    EXPECT_EQ(failureOf(file.replace("short")), "no failure");
    EXPECT_EQ(textOf(file), "short");
}

TEST(StateFile, TakesAFolderWithATrailingSlash) {
    FakeDisk disk("/state");
    EXPECT_EQ(StateFile(disk, "/state/", "name").path(), "/state/name");
}

TEST(StateFile, TakesNoFolderForTheCurrentOne) {
    FakeDisk disk("/state");
    EXPECT_EQ(StateFile(disk, "", "name").path(), "./name");
}

TEST(StateFile, IsMissingBeforeItsFirstText) {
    FakeDisk disk("/state");
    StateFile file(disk, "/state", "name");
    EXPECT_TRUE(std::holds_alternative<StateFile::Missing>(file.read()));
    StateFile elsewhere(disk, "/no/folder", "name");
    EXPECT_TRUE(std::holds_alternative<StateFile::Missing>(elsewhere.read()));
}

TEST(StateFile, MakesItsFolderAndThoseAboveWhenItIsLocked) {
    FakeDisk disk("/ann");
    StateFile file(disk, "/ann/.local/state/vantrel/", "name");
    EXPECT_TRUE(std::holds_alternative<OpenFile>(file.lock()));
    EXPECT_EQ(disk.paths(),
              (std::vector<std::string>{"/", "/ann", "/ann/.local", "/ann/.local/state",
                                        "/ann/.local/state/vantrel", "/ann/.local/state/vantrel/name.lock"}));
}

TEST(StateFile, SaysThatItsFolderCannotBeMade) {
    FakeDisk disk("/ann");
    WatchedFileSystem system(disk, failing("makeFolder", std::errc::read_only_file_system));
    StateFile file(system, "/ann/state", "name");
    EXPECT_EQ(failureOf(file.lock()), "making /ann/state: Read-only file system");
}

TEST(StateFile, IsDamagedWhenItIsEmpty) {
    FakeDisk disk("/state");
    disk.put("/state/name", "");
    StateFile file(disk, "/state", "name");
    EXPECT_EQ(damageOf(file), "is empty");
}

TEST(StateFile, IsDamagedWhenItIsAFolder) {
    FakeDisk disk("/state/name");
    StateFile file(disk, "/state", "name");
    EXPECT_EQ(damageOf(file), "is a folder");
}

TEST(StateFile, IsDamagedWhenItIsAPipe) {
    FakeDisk disk("/state");
    disk.put("/state/name", "", {FileSystem::Kind::other, false});
    StateFile file(disk, "/state", "name");
    EXPECT_EQ(damageOf(file), "is no ordinary file");
}

TEST(StateFile, IsDamagedWhenItIsTooLarge) {
    FakeDisk disk("/state");
    disk.put("/state/name", std::string(StateFile::mostBytes, 'x'));
    StateFile file(disk, "/state", "name");
    EXPECT_EQ(damageOf(file), "no damage");
    disk.put("/state/name", std::string(StateFile::mostBytes + 1, 'x'));
    EXPECT_EQ(damageOf(file), "is too large");
}

TEST(StateFile, KeepsItsTextRatherThanBecomeTooLarge) {
    FakeDisk disk("/state");
    disk.put("/state/name", "old");
    StateFile file(disk, "/state", "name");
    const auto lock = file.lock();
    EXPECT_EQ(failureOf(file.replace(std::string(StateFile::mostBytes + 1, 'x'))),
              "/state/name would be too large");
    EXPECT_EQ(textOf(file), "old");
}

TEST(StateFile, SaysWhyItCannotBeRead) {
    FakeDisk disk("/state");
    disk.put("/state/name", "text");
    WatchedFileSystem unreadable(disk, failing("open", std::errc::permission_denied));
    WatchedFileSystem broken(disk, failing("read", std::errc::io_error));
    EXPECT_EQ(failureOf(StateFile(unreadable, "/state", "name").read()),
              "opening /state/name: Permission denied");
    EXPECT_EQ(failureOf(StateFile(broken, "/state", "name").read()),
              "reading /state/name: Input/output error");
}

TEST(StateFile, LeavesNoTemporaryFileWhenTheDiskIsFull) {
    FakeDisk disk("/state");
    disk.put("/state/name", "old");
    WatchedFileSystem full(disk, failing("write", std::errc::no_space_on_device));
    StateFile file(full, "/state", "name");
    const auto lock = file.lock();
    EXPECT_EQ(failureOf(file.replace("new")), "writing /state/name.new: No space left on device");
    EXPECT_EQ(disk.paths(), (std::vector<std::string>{"/", "/state", "/state/name", "/state/name.lock"}));
    EXPECT_EQ(textOf(file), "old");
}

TEST(StateFile, ReplacesATemporaryFileThatACrashLeft) {
    FakeDisk disk("/state");
    disk.put("/state/name.new", "half of");
    StateFile file(disk, "/state", "name");
    const auto lock = file.lock();
    EXPECT_EQ(failureOf(file.replace("new")), "no failure");
    EXPECT_EQ(textOf(file), "new");
}

TEST(StateFile, NeedsNoSyncOfAFolderThatCannotBeSynced) {
    FakeDisk disk("/state");
    int syncs = 0;
    WatchedFileSystem network(disk, [&](std::string_view call, const std::string&) {
        const bool isOfFolder = call == "sync" && ++syncs % 2 == 0;
        return isOfFolder ? std::make_error_code(std::errc::invalid_argument) : std::error_code();
    });
    StateFile file(network, "/state", "name");
    const auto lock = file.lock();
    EXPECT_EQ(failureOf(file.replace("new")), "no failure");
    EXPECT_EQ(syncs, 2);
}

TEST(StateFile, MovesAsideToTheFirstFreeName) {
    FakeDisk disk("/state");
    disk.put("/state/name", "damaged");
    disk.put("/state/name.damaged-1", "earlier");
    StateFile file(disk, "/state", "name");
    const auto lock = file.lock();
    const auto moved = file.moveAside();
    EXPECT_EQ(std::get<std::string>(moved), "/state/name.damaged-2");
    EXPECT_EQ(disk.bytes("/state/name.damaged-1"), "earlier");
    EXPECT_EQ(disk.bytes("/state/name.damaged-2"), "damaged");
    EXPECT_TRUE(std::holds_alternative<StateFile::Missing>(file.read()));
}

TEST(StateFile, CanBeLockedAgainAfterItsUnlocking) {
    FakeDisk disk("/state");
    StateFile file(disk, "/state", "name");
    for (int time = 0; time < 2; ++time) EXPECT_TRUE(std::holds_alternative<OpenFile>(file.lock()));
}

}  // namespace
}  // namespace vantrel::posix
