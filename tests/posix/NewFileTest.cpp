#include <gtest/gtest.h>

#include "platform/posix/NewFile.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/FakeDisk.h"
#include "support/TemporaryFolder.h"
#include "support/WatchedFileSystem.h"

namespace vantrel::posix {
namespace {

using test::FakeDisk;
using test::WatchedFileSystem;
using Reason = std::optional<std::string>;
using Paths = std::vector<std::string>;

constexpr const char* path = "/reports/desk.json";

// Lets the named call fail every time.
WatchedFileSystem::Before failing(std::string_view call, std::errc error) {
    return [=](std::string_view made, const std::string&) {
        return made == call ? std::make_error_code(error) : std::error_code();
    };
}

TEST(NewFile, HasItsTextAndNothingBesideIt) {
    FakeDisk disk("/reports");
    const Paths before = disk.paths();
    NewFile file(disk, path);
    EXPECT_EQ(file.obstacle(), Reason());
    EXPECT_EQ(disk.paths(), before);
    const std::string text(100'000, 'x');
    EXPECT_EQ(file.write(text), Reason());
    EXPECT_EQ(disk.bytes(path), text);
    EXPECT_EQ(disk.paths().size(), before.size() + 1);
}

TEST(NewFile, SurvivesALossOfPower) {
    FakeDisk disk("/reports");
    EXPECT_EQ(NewFile(disk, path).write("text"), Reason());
    for (const FakeDisk& found : disk.afterPowerLoss()) EXPECT_EQ(found.bytes(path), "text");
}

TEST(NewFile, IsWholeOrNotThereWheneverThePowerGoes) {
    FakeDisk disk("/reports");
    const auto check = [&disk](std::string_view, const std::string&) {
        for (const FakeDisk& found : disk.afterPowerLoss())
            EXPECT_EQ(found.bytes(path).value_or("a long text"), "a long text");
        return std::error_code();
    };
    WatchedFileSystem watched(disk, check);
    EXPECT_EQ(NewFile(watched, path).write("a long text"), Reason());
}

TEST(NewFile, TakesNoOthersPlace) {
    FakeDisk disk("/reports");
    disk.put(path, "precious");
    const Reason reason = "/reports/desk.json: is there already, and is not overwritten";
    EXPECT_EQ(NewFile(disk, path).obstacle(), reason);
    EXPECT_EQ(NewFile(disk, path).write("text"), reason);
    EXPECT_EQ(disk.bytes(path), "precious");
}

TEST(NewFile, TakesNoOthersTemporaryName) {
    FakeDisk disk("/reports");
    disk.put("/reports/desk.json.new", "precious");
    const Reason reason = "/reports/desk.json.new: File exists";
    EXPECT_EQ(NewFile(disk, path).obstacle(), reason);
    EXPECT_EQ(NewFile(disk, path).write("text"), reason);
    EXPECT_EQ(disk.bytes("/reports/desk.json.new"), "precious");
    EXPECT_EQ(disk.bytes(path), std::nullopt);
}

TEST(NewFile, SaysWhatFailedAndLeavesNothing) {
    for (const char* call : {"write", "sync", "rename"}) {
        FakeDisk disk("/reports");
        const Paths before = disk.paths();
        WatchedFileSystem full(disk, failing(call, std::errc::no_space_on_device));
        EXPECT_EQ(NewFile(full, path).write("text"), Reason("/reports/desk.json: No space left on device"))
            << call;
        EXPECT_EQ(disk.paths(), before) << call;
    }
}

TEST(NewFile, SaysWhatIsInItsWay) {
    FakeDisk disk("/reports");
    for (const char* call : {"exists", "remove"}) {
        WatchedFileSystem broken(disk, failing(call, std::errc::io_error));
        EXPECT_EQ(NewFile(broken, path).obstacle(), Reason("/reports/desk.json: Input/output error")) << call;
        disk.remove("/reports/desk.json.new");
    }
    EXPECT_EQ(NewFile(disk, "/missing/desk.json").obstacle(),
              Reason("/missing/desk.json.new: No such file or directory"));
    EXPECT_EQ(NewFile(disk, "/missing/desk.json").write(""),
              Reason("/missing/desk.json.new: No such file or directory"));
}

TEST(NewFile, IsWrittenWhereAFolderCannotBeSynced) {
    FakeDisk disk("/reports");
    int syncs = 0;
    WatchedFileSystem network(disk, [&syncs](std::string_view call, const std::string&) {
        const bool isOfTheFolder = call == "sync" && ++syncs == 2;
        return isOfTheFolder ? std::make_error_code(std::errc::invalid_argument) : std::error_code();
    });
    EXPECT_EQ(NewFile(network, path).write("text"), Reason());
    EXPECT_EQ(disk.bytes(path), "text");
}

TEST(NewFile, IsMadeOnTheRealDisk) {
    const test::TemporaryFolder folder;
    PosixFileSystem files;
    EXPECT_EQ(NewFile(files, folder.path("desk.json")).write("text"), Reason());
    EXPECT_EQ(folder.bytes("desk.json"), "text");
}

}  // namespace
}  // namespace vantrel::posix
