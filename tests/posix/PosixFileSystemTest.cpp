#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/OpenFile.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/ChildProcess.h"
#include "support/TemporaryFolder.h"

namespace vantrel::posix {
namespace {

using File = FileSystem::File;
using Kind = FileSystem::Kind;
using Open = FileSystem::Open;

class PosixFileSystemTest : public testing::Test {
  protected:
    OpenFile open(const std::string& name, Open purpose) {
        return {system, std::get<File>(system.open(folder.path(name), purpose))};
    }
    std::error_code openingError(const std::string& name, Open purpose) {
        const auto opened = system.open(folder.path(name), purpose);
        const auto* error = std::get_if<std::error_code>(&opened);
        return error != nullptr ? *error : std::error_code();
    }
    FileSystem::Status status(const std::string& name) {
        const OpenFile file = open(name, Open::existing);
        return std::get<FileSystem::Status>(system.status(file.get()));
    }
    mode_t permissions(const std::string& name) {
        struct stat found {};
        EXPECT_EQ(::stat(folder.path(name).c_str(), &found), 0);
        return found.st_mode & 0777;
    }

    test::TemporaryFolder folder;
    PosixFileSystem system;
};

TEST_F(PosixFileSystemTest, ReadsWhatItWrote) {
    {
        const OpenFile file = open("name", Open::newFile);
        EXPECT_EQ(std::get<std::size_t>(system.write(file.get(), "some bytes")), 10U);
        EXPECT_FALSE(system.sync(file.get()));
    }
    const OpenFile file = open("name", Open::existing);
    EXPECT_EQ(std::get<std::string>(system.read(file.get(), 4)), "some");
    EXPECT_EQ(std::get<std::string>(system.read(file.get(), 100)), " bytes");
    EXPECT_EQ(std::get<std::string>(system.read(file.get(), 100)), "");
}

TEST_F(PosixFileSystemTest, MakesNoNewFileOfATakenName) {
    folder.put("name", "old");
    EXPECT_EQ(openingError("name", Open::newFile), std::errc::file_exists);
    EXPECT_EQ(folder.bytes("name"), "old");
}

TEST_F(PosixFileSystemTest, FollowsNoLinkWhenItMakesAFile) {
    ASSERT_EQ(::symlink("elsewhere", folder.path("name").c_str()), 0);
    EXPECT_EQ(openingError("name", Open::newFile), std::errc::file_exists);
}

TEST_F(PosixFileSystemTest, SaysThatThereIsNoFile) {
    EXPECT_EQ(openingError("name", Open::existing), std::errc::no_such_file_or_directory);
    EXPECT_EQ(openingError("no/name", Open::lockFile), std::errc::no_such_file_or_directory);
}

TEST_F(PosixFileSystemTest, MakesFilesAndFoldersForTheUserAlone) {
    open("file", Open::newFile);
    open("lock", Open::lockFile);
    ASSERT_FALSE(system.makeFolder(folder.path("folder")));
    EXPECT_EQ(permissions("file") & 077, 0U);
    EXPECT_EQ(permissions("lock") & 077, 0U);
    EXPECT_EQ(permissions("folder"), 0700U);
}

TEST_F(PosixFileSystemTest, TellsFilesFromFoldersAndPipes) {
    folder.put("file", "");
    ASSERT_FALSE(system.makeFolder(folder.path("folder")));
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(status("file").kind, Kind::file);
    EXPECT_EQ(status("folder").kind, Kind::folder);
    EXPECT_EQ(status("pipe").kind, Kind::other);
}

TEST_F(PosixFileSystemTest, KnowsAFileThatNobodyMayWrite) {
    folder.put("name", "");
    EXPECT_FALSE(status("name").isReadOnly);
    ASSERT_EQ(::chmod(folder.path("name").c_str(), 0444), 0);
    EXPECT_TRUE(status("name").isReadOnly);
}

TEST_F(PosixFileSystemTest, SyncsAFolder) {
    const OpenFile itself = open(".", Open::existing);
    EXPECT_FALSE(system.sync(itself.get()));
}

TEST_F(PosixFileSystemTest, PutsAFileInPlaceOfAnother) {
    folder.put("new", "new");
    folder.put("name", "old");
    EXPECT_FALSE(system.rename(folder.path("new"), folder.path("name")));
    EXPECT_EQ(folder.bytes("name"), "new");
    EXPECT_EQ(folder.bytes("new"), std::nullopt);
}

TEST_F(PosixFileSystemTest, RemovesAFile) {
    folder.put("name", "");
    EXPECT_FALSE(system.remove(folder.path("name")));
    EXPECT_EQ(system.remove(folder.path("name")), std::errc::no_such_file_or_directory);
}

TEST_F(PosixFileSystemTest, SeesABrokenLink) {
    ASSERT_EQ(::symlink("elsewhere", folder.path("name").c_str()), 0);
    EXPECT_TRUE(std::get<bool>(system.exists(folder.path("name"))));
    EXPECT_FALSE(std::get<bool>(system.exists(folder.path("elsewhere"))));
}

TEST_F(PosixFileSystemTest, SaysThatAFolderIsThereAlready) {
    ASSERT_FALSE(system.makeFolder(folder.path("folder")));
    EXPECT_EQ(system.makeFolder(folder.path("folder")), std::errc::file_exists);
}

TEST_F(PosixFileSystemTest, LeavesNoFileOpenToAProgramThatIsStarted) {
    for (const Open purpose : {Open::newFile, Open::lockFile, Open::existing}) {
        const OpenFile file = open("name", purpose);
        EXPECT_NE(::fcntl(static_cast<int>(file.get()), F_GETFD) & FD_CLOEXEC, 0);
    }
}

// The child reports before it waits and after; the parent writes down when it unlocks.
TEST_F(PosixFileSystemTest, WaitsForAnotherProcessThatHasTheLock) {
    folder.put("order", "");
    const auto write = [this](std::string_view word) {
        const int order = ::open(folder.path("order").c_str(), O_WRONLY | O_APPEND);
        EXPECT_EQ(::write(order, word.data(), word.size()), static_cast<ssize_t>(word.size()));
        ::close(order);
    };
    std::optional<OpenFile> lock = open("lock", Open::lockFile);
    ASSERT_FALSE(system.lock(lock->get()));
    test::ChildProcess child([&](const test::ChildProcess::Report& report) {
        // The copy that the child was born with holds the same lock.
        lock.reset();
        const OpenFile own = open("lock", Open::lockFile);
        report("!");
        system.lock(own.get());
        write("locked ");
    });
    char byte = 0;
    ASSERT_TRUE(child.readByte(byte));
    write("unlocked ");
    lock.reset();
    EXPECT_EQ(child.wait(), 0);
    EXPECT_EQ(folder.bytes("order"), "unlocked locked ");
}

TEST_F(PosixFileSystemTest, TakesTheLockOfAProcessThatWasKilled) {
    test::ChildProcess child([&](const test::ChildProcess::Report& report) {
        const OpenFile own = open("lock", Open::lockFile);
        system.lock(own.get());
        report("!");
        while (true) ::pause();
    });
    char byte = 0;
    ASSERT_TRUE(child.readByte(byte));
    child.kill();
    const OpenFile lock = open("lock", Open::lockFile);
    EXPECT_FALSE(system.lock(lock.get()));
}

}  // namespace
}  // namespace vantrel::posix
