#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/Sysfs.h"
#include "support/TemporaryFolder.h"

namespace vantrel::linux {
namespace {

using Names = std::vector<std::string>;
using Bytes = std::vector<std::uint8_t>;

class SysfsTest : public testing::Test {
  protected:
    void makeFolder(const std::string& name) const { std::filesystem::create_directories(folder.path(name)); }
    void link(const std::string& name, const std::string& to) const {
        std::filesystem::create_symlink(to, folder.path(name));
    }

    const test::TemporaryFolder folder;
    const Sysfs sysfs{folder.path()};
};

// Texts.

TEST_F(SysfsTest, ReadsATextWithoutTheLineBreakAtItsEnd) {
    folder.put("status", "connected\n");
    EXPECT_EQ(sysfs.text("/status"), "connected");
    folder.put("status", "connected");
    EXPECT_EQ(sysfs.text("/status"), "connected");
}

TEST_F(SysfsTest, KeepsTheLinesOfATextApart) {
    folder.put("uevent", "MAJOR=89\nMINOR=4\n");
    EXPECT_EQ(sysfs.text("/uevent"), "MAJOR=89\nMINOR=4");
    folder.put("uevent", "\n\n");
    EXPECT_EQ(sysfs.text("/uevent"), "\n");
}

TEST_F(SysfsTest, ReadsAnEmptyText) {
    folder.put("status", "");
    EXPECT_EQ(sysfs.text("/status"), "");
    folder.put("status", "\n");
    EXPECT_EQ(sysfs.text("/status"), "");
}

TEST_F(SysfsTest, HasNoTextThatIsNotThere) {
    EXPECT_EQ(sysfs.text("/status"), std::nullopt);
    EXPECT_EQ(sysfs.text("/folder/status"), std::nullopt);
}

TEST_F(SysfsTest, HasNothingThatCanNotBeReadThoughItsNameIsThere) {
    makeFolder("folder");
    EXPECT_EQ(sysfs.text("/folder"), std::nullopt);
    EXPECT_EQ(sysfs.number("/folder"), std::nullopt);
    EXPECT_EQ(sysfs.bytes("/folder"), Bytes());
}

TEST_F(SysfsTest, ReadsWhatIsThereAtEachLook) {
    folder.put("status", "connected\n");
    EXPECT_EQ(sysfs.text("/status"), "connected");
    folder.put("status", "off\n");
    EXPECT_EQ(sysfs.text("/status"), "off");
    std::filesystem::remove(folder.path("status"));
    EXPECT_EQ(sysfs.text("/status"), std::nullopt);
}

// Numbers.

TEST_F(SysfsTest, ReadsANumber) {
    folder.put("brightness", "120\n");
    EXPECT_EQ(sysfs.number("/brightness"), 120);
    folder.put("brightness", "0");
    EXPECT_EQ(sysfs.number("/brightness"), 0);
    folder.put("brightness", "18446744073709551615\n");
    EXPECT_EQ(sysfs.number("/brightness"), UINT64_MAX);
}

TEST_F(SysfsTest, HasNoNumberWhereThereIsNone) {
    EXPECT_EQ(sysfs.number("/brightness"), std::nullopt);
    for (const char* text :
         {"", "\n", "-1\n", "12x\n", "x12\n", "1 2\n", "1.5\n", "18446744073709551616\n"}) {
        folder.put("brightness", text);
        EXPECT_EQ(sysfs.number("/brightness"), std::nullopt) << text;
    }
}

// Bytes.

TEST_F(SysfsTest, ReadsBytesAsTheyAre) {
    folder.put("edid", std::string("\0\xFF\n\0", 4));
    EXPECT_EQ(sysfs.bytes("/edid"), Bytes({0x00, 0xFF, 0x0A, 0x00}));
    EXPECT_EQ(sysfs.bytes("/other"), Bytes());
}

TEST_F(SysfsTest, ReadsTheLargestEDID) {
    std::string edid(256UL * 128UL, 'x');
    edid.back() = 'y';
    folder.put("edid", edid);
    const Bytes bytes = sysfs.bytes("/edid");
    ASSERT_EQ(bytes.size(), edid.size());
    EXPECT_EQ(bytes.back(), 'y');
}

// Names.

TEST_F(SysfsTest, KnowsWhatExists) {
    makeFolder("class/drm");
    folder.put("file", "");
    link("link", "class");
    link("broken", "nowhere");
    for (const char* path : {"/class/drm", "/file", "/link", "/link/drm"})
        EXPECT_TRUE(sysfs.exists(path)) << path;
    for (const char* path : {"/class/card0", "/file/x", "/broken"}) EXPECT_FALSE(sysfs.exists(path)) << path;
}

TEST_F(SysfsTest, ListsNamesWithTheNumbersInThemAsNumbers) {
    for (const char* name : {"card1", "card0-DP-10", "card0-DP-2", "card0", "card10-DP-1", "card2-DP-1",
                             "version", "card0-HDMI-A-1", "card0-DP-1"}) {
        makeFolder(std::string("drm/") + name);
    }
    EXPECT_EQ(sysfs.names("/drm"),
              Names({"card0", "card0-DP-1", "card0-DP-2", "card0-DP-10", "card0-HDMI-A-1", "card1",
                     "card2-DP-1", "card10-DP-1", "version"}));
}

TEST_F(SysfsTest, ListsFilesFoldersAndLinksAlikeAndNothingHidden) {
    makeFolder("drm/folder");
    folder.put("drm/file", "");
    link("drm/link", "nowhere");
    folder.put("drm/.hidden", "");
    EXPECT_EQ(sysfs.names("/drm"), Names({"file", "folder", "link"}));
}

TEST_F(SysfsTest, HasNoNamesInWhatIsNoFolder) {
    folder.put("file", "");
    EXPECT_EQ(sysfs.names("/file"), Names());
    EXPECT_EQ(sysfs.names("/nowhere"), Names());
}

TEST_F(SysfsTest, SaysTheSameOfEveryWayToOneDevice) {
    makeFolder("devices/pci/drm/card0");
    makeFolder("class");
    link("class/card0", "../devices/pci/drm/card0");
    link("devices/pci/drm/card0/device", "../..");
    const std::string device = std::filesystem::canonical(folder.path("devices/pci")).string();
    EXPECT_EQ(sysfs.realPath("/class/card0/device"), device);
    EXPECT_EQ(sysfs.realPath("/devices/pci"), device);
    EXPECT_EQ(sysfs.realPath("/devices/pci/drm/../"), device);
}

TEST_F(SysfsTest, HasNoRealPathOfWhatIsNotThere) {
    link("broken", "nowhere");
    EXPECT_EQ(sysfs.realPath("/broken"), std::nullopt);
    EXPECT_EQ(sysfs.realPath("/nowhere"), std::nullopt);
}

// Writing.

TEST_F(SysfsTest, WritesAText) {
    folder.put("brightness", "");
    EXPECT_EQ(sysfs.write("/brightness", "50"), 0);
    EXPECT_EQ(folder.bytes("brightness"), "50");
}

TEST_F(SysfsTest, SaysWhyItCanNotWrite) {
    makeFolder("folder");
    EXPECT_EQ(sysfs.write("/nowhere", "50"), ENOENT);
    EXPECT_EQ(sysfs.write("/folder", "50"), EISDIR);
    EXPECT_EQ(folder.bytes("nowhere"), std::nullopt) << "no file is made";
}

TEST_F(SysfsTest, SaysWhyWhatItWroteWasNotTaken) {
    link("full", "/dev/full");
    EXPECT_EQ(sysfs.write("/full", "50"), ENOSPC);
}

}  // namespace
}  // namespace vantrel::linux
