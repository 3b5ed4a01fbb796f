#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "linux/FakeSession.h"
#include "linux/SysfsTree.h"
#include "platform/linux/Backlight.h"

namespace vantrel::linux {
namespace {

using Asked = std::vector<std::string>;

class BacklightTest : public testing::Test {
  protected:
    // As a file of the kernel shows it.
    std::optional<std::uint64_t> brightness(const std::string& name = "intel_backlight") const {
        return sysfs.number("/class/backlight/" + name + "/brightness");
    }

    SysfsTree tree;
    const Sysfs sysfs = tree.sysfs();
    FakeSession session{&tree};
    Backlight backlight{sysfs, session};
};

TEST_F(BacklightTest, HasNoLevelWithoutALight) {
    EXPECT_EQ(backlight.level(), std::nullopt);
    EXPECT_FALSE(backlight.setLevel(0.5F));
    EXPECT_EQ(session.backlights, Asked());
}

TEST_F(BacklightTest, HasTheLevelOfItsLight) {
    tree.addBacklight("intel_backlight", "raw", 300, 1200);
    EXPECT_EQ(backlight.level(), 0.25F);
    tree.setBacklight("intel_backlight", 0);
    EXPECT_EQ(backlight.level(), 0.0F);
    tree.setBacklight("intel_backlight", 1200);
    EXPECT_EQ(backlight.level(), 1.0F);
}

TEST_F(BacklightTest, HasNoLevelAboveTheHighest) {
    tree.addBacklight("intel_backlight", "raw", 1300, 1200);
    EXPECT_EQ(backlight.level(), 1.0F);
}

TEST_F(BacklightTest, HasNoLevelThatCanNotBeRead) {
    tree.addBacklight("intel_backlight", "raw", 300, 1200);
    tree.put("class/backlight/intel_backlight/brightness", "bright\n");
    EXPECT_EQ(backlight.level(), std::nullopt);
}

TEST_F(BacklightTest, TakesNoLightWithoutAHighestLevel) {
    tree.addBacklight("acpi_video0", "firmware", 0, 0);
    EXPECT_EQ(backlight.level(), std::nullopt);
    EXPECT_FALSE(backlight.setLevel(0.5F));
    tree.addBacklight("intel_backlight", "raw", 300, 1200);
    EXPECT_EQ(backlight.level(), 0.25F);
}

TEST_F(BacklightTest, SetsTheLevelThroughTheSession) {
    tree.addBacklight("intel_backlight", "raw", 300, 1200);
    EXPECT_TRUE(backlight.setLevel(0.5F));
    EXPECT_EQ(session.backlights, Asked{"intel_backlight 600"});
    EXPECT_EQ(backlight.level(), 0.5F);
}

TEST_F(BacklightTest, SetsTheNearestLevelThatTheLightHas) {
    tree.addBacklight("intel_backlight", "raw", 3, 7);
    EXPECT_TRUE(backlight.setLevel(0.49F));
    EXPECT_EQ(brightness(), 3);
    EXPECT_TRUE(backlight.setLevel(0.51F));
    EXPECT_EQ(brightness(), 4);
}

TEST_F(BacklightTest, NeverSetsNoLightAtAll) {
    tree.addBacklight("intel_backlight", "raw", 300, 1200);
    EXPECT_TRUE(backlight.setLevel(0));
    EXPECT_EQ(brightness(), 12);
    tree.addBacklight("acpi_video0", "firmware", 3, 7);
    EXPECT_TRUE(backlight.setLevel(0));
    EXPECT_EQ(brightness("acpi_video0"), 1);
}

TEST_F(BacklightTest, SetsTheEndsForWhatIsBeyondThem) {
    tree.addBacklight("intel_backlight", "raw", 300, 1200);
    EXPECT_TRUE(backlight.setLevel(1.5F));
    EXPECT_EQ(brightness(), 1200);
    EXPECT_TRUE(backlight.setLevel(-1));
    EXPECT_EQ(brightness(), 12);
    EXPECT_TRUE(backlight.setLevel(std::numeric_limits<float>::infinity()));
    EXPECT_EQ(brightness(), 1200);
    EXPECT_TRUE(backlight.setLevel(-std::numeric_limits<float>::infinity()));
    EXPECT_EQ(brightness(), 12);
}

TEST_F(BacklightTest, SetsNothingForWhatIsNoNumber) {
    tree.addBacklight("intel_backlight", "raw", 300, 1200);
    EXPECT_FALSE(backlight.setLevel(std::numeric_limits<float>::quiet_NaN()));
    EXPECT_EQ(session.backlights, Asked());
    EXPECT_EQ(brightness(), 300);
}

TEST_F(BacklightTest, WritesTheFileWhereTheSessionDoesNot) {
    session.refuses = true;
    tree.addBacklight("intel_backlight", "raw", 1, 1200);
    EXPECT_TRUE(backlight.setLevel(0.75F));
    EXPECT_EQ(session.backlights, Asked{"intel_backlight 900"});
    EXPECT_EQ(brightness(), 900);
}

TEST_F(BacklightTest, FailsWhenNobodyMaySetIt) {
    session.refuses = true;
    tree.addBacklight("intel_backlight", "raw", 300, 1200);
    tree.remove("class/backlight/intel_backlight/brightness");
    EXPECT_FALSE(backlight.setLevel(0.75F));
}

TEST_F(BacklightTest, PrefersTheFirmwaresLightThenThePlatformsThenTheRawOne) {
    tree.addBacklight("a_raw", "raw", 1, 10);
    EXPECT_EQ(backlight.level(), 0.1F);
    tree.addBacklight("b_platform", "platform", 2, 10);
    EXPECT_EQ(backlight.level(), 0.2F);
    tree.addBacklight("c_firmware", "firmware", 3, 10);
    EXPECT_EQ(backlight.level(), 0.3F);
    tree.addBacklight("0_other", "other", 4, 10);
    EXPECT_EQ(backlight.level(), 0.3F);
    EXPECT_TRUE(backlight.setLevel(0.5F));
    EXPECT_EQ(session.backlights, Asked{"c_firmware 5"});
}

}  // namespace
}  // namespace vantrel::linux
