#include <gtest/gtest.h>

#include "platform/EnglishLocalizer.h"
#include "platform/posix/AutostartEntry.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/FakeDisk.h"
#include "support/TemporaryFolder.h"
#include "support/WatchedFileSystem.h"

namespace vantrel::posix {
namespace {

using test::FakeDisk;

constexpr const char* path = "/people/ann/.config/autostart/org.vantrel.Vantrel.desktop";
const StateFolder::Environment environment{"/people/ann", {}, {}};

struct Rig {
    FakeDisk disk{"/people/ann"};
    platform::EnglishLocalizer localizer;
    AutostartEntry entry{disk, environment, localizer, "/usr/bin/vantrel"};
};

// The value of a key of the file that starts `program`.
std::string valueOf(const std::string& key, const std::string& program) {
    FakeDisk disk("/people/ann");
    platform::EnglishLocalizer localizer;
    AutostartEntry(disk, environment, localizer, program).enable();
    const std::string text = disk.bytes(path).value_or("");
    const std::size_t begin = text.find("\n" + key + "=") + key.size() + 2;
    return text.substr(begin, text.find('\n', begin) - begin);
}

TEST(AutostartEntry, IsOffWithoutAFile) { EXPECT_FALSE(Rig().entry.isEnabled()); }

TEST(AutostartEntry, IsAFileInTheAutostartFolder) {
    Rig rig;
    EXPECT_EQ(rig.entry.enable(), std::nullopt);
    EXPECT_TRUE(rig.entry.isEnabled());
    EXPECT_TRUE(rig.disk.bytes(path)->starts_with("[Desktop Entry]\nType=Application\n"));
}

TEST(AutostartEntry, LeavesNothingElseInTheFolder) {
    Rig rig;
    rig.entry.enable();
    for (const auto& found : rig.disk.paths()) {
        EXPECT_TRUE(found == path || !found.starts_with("/people/ann/.config/autostart/")) << found;
    }
}

TEST(AutostartEntry, GoesWithItsFile) {
    Rig rig;
    rig.entry.enable();
    EXPECT_EQ(rig.entry.disable(), std::nullopt);
    EXPECT_FALSE(rig.entry.isEnabled());
    EXPECT_EQ(rig.disk.bytes(path), std::nullopt);
}

TEST(AutostartEntry, CanBeDisabledTwice) {
    Rig rig;
    EXPECT_EQ(rig.entry.disable(), std::nullopt);
}

TEST(AutostartEntry, IsOffWhenADesktopHidIt) {
    Rig rig;
    rig.entry.enable();
    rig.disk.put(path, *rig.disk.bytes(path) + "Hidden=true\n");
    EXPECT_FALSE(rig.entry.isEnabled());
    rig.entry.enable();
    EXPECT_TRUE(rig.entry.isEnabled());
}

TEST(AutostartEntry, IsOffWhenADesktopSwitchedItOff) {
    Rig rig;
    rig.disk.put("/people/ann/.config", "", {FileSystem::Kind::folder, false});
    rig.disk.put("/people/ann/.config/autostart", "", {FileSystem::Kind::folder, false});
    rig.disk.put(path, "[Desktop Entry]\nX-GNOME-Autostart-enabled=false");
    EXPECT_FALSE(rig.entry.isEnabled());
}

TEST(AutostartEntry, QuotesTheProgramsPath) {
    EXPECT_EQ(valueOf("Exec", "/opt/My Tools/vantrel"), "\"/opt/My Tools/vantrel\"");
    EXPECT_EQ(valueOf("Exec", "/50%/vantrel"), "\"/50%%/vantrel\"");
    EXPECT_EQ(valueOf("Exec", "/a$b`c\"d/vantrel"), R"("/a\\$b\\`c\\"d/vantrel")");
    EXPECT_EQ(valueOf("Exec", R"(/a\b)"), R"("/a\\\\b")");
}

TEST(AutostartEntry, SaysWhyItCanNotBeWritten) {
    const test::TemporaryFolder home;
    home.put(".config", "a file in the way");
    PosixFileSystem files;
    platform::EnglishLocalizer localizer;
    AutostartEntry entry(files, {home.path(), {}, {}}, localizer, "vantrel");
    EXPECT_EQ(entry.enable(), "The entry for starting at login can't be written: making " +
                                  home.path(".config/autostart/org.vantrel.Vantrel.desktop.new") +
                                  ": Not a directory");
    EXPECT_FALSE(entry.isEnabled());
}

TEST(AutostartEntry, SaysWhyItCanNotBeRemoved) {
    FakeDisk disk("/people/ann");
    platform::EnglishLocalizer localizer;
    AutostartEntry(disk, environment, localizer, "vantrel").enable();
    test::WatchedFileSystem refusing(disk, [](std::string_view call, const std::string&) {
        return call == "remove" ? std::make_error_code(std::errc::permission_denied) : std::error_code();
    });
    AutostartEntry entry(refusing, environment, localizer, "vantrel");
    EXPECT_EQ(entry.disable(),
              "The entry for starting at login can't be removed: "
              "/people/ann/.config/autostart/org.vantrel.Vantrel.desktop: Permission denied");
    EXPECT_TRUE(entry.isEnabled());
}

TEST(AutostartEntry, SaysThatThereIsNoPlaceWithoutHome) {
    FakeDisk disk("/");
    platform::EnglishLocalizer localizer;
    AutostartEntry entry(disk, {}, localizer, "vantrel");
    const std::string reason =
        "There is no place for an entry for starting at login, because HOME is not set.";
    EXPECT_EQ(entry.enable(), reason);
    EXPECT_EQ(entry.disable(), reason);
    EXPECT_FALSE(entry.isEnabled());
}

TEST(AutostartEntry, IsTheOldOneOrTheNewOneWhenThePowerGoes) {
    Rig rig;
    rig.entry.enable();
    const std::string whole = *rig.disk.bytes(path);
    AutostartEntry other(rig.disk, environment, rig.localizer, "/opt/vantrel");
    other.enable();
    for (const FakeDisk& disk : rig.disk.afterPowerLoss()) EXPECT_EQ(disk.bytes(path), rig.disk.bytes(path));
    EXPECT_NE(rig.disk.bytes(path), whole);
}

TEST(AutostartEntry, WorksOnARealDisk) {
    const test::TemporaryFolder home;
    PosixFileSystem files;
    platform::EnglishLocalizer localizer;
    AutostartEntry entry(files, {home.path(), {}, {}}, localizer, "/usr/bin/vantrel");
    EXPECT_EQ(entry.enable(), std::nullopt);
    EXPECT_TRUE(entry.isEnabled());
    EXPECT_TRUE(home.bytes(".config/autostart/org.vantrel.Vantrel.desktop"));
    EXPECT_EQ(entry.disable(), std::nullopt);
    EXPECT_FALSE(entry.isEnabled());
}

}  // namespace
}  // namespace vantrel::posix
