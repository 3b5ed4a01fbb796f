// The slider of a laptop's own panel.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "linux/LinuxScenario.h"

namespace vantrel::linux {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class LinuxPanelScenario : public LinuxScenario {
  protected:
    const std::shared_ptr<model::BuiltInDisplay>& panel() const { return story.manager().builtIn(); }
    std::optional<std::uint64_t> backlight() const {
        return hardware().sysfs.number("/class/backlight/intel_backlight/brightness");
    }
};

TEST_F(LinuxPanelScenario, BeginsWhereTheBacklightIs) {
    ASSERT_NE(panel(), nullptr);
    EXPECT_EQ(panel()->id(), story.id(1));
    EXPECT_FLOAT_EQ(panel()->brightness(), 0.5F);
    EXPECT_THAT(hardware().session.backlights, IsEmpty());
}

TEST_F(LinuxPanelScenario, MovesTheBacklight) {
    for (const float level : {0.4F, 0.3F, 0.2F}) panel()->setBrightness(level);
    EXPECT_EQ(backlight(), 200U);
    EXPECT_THAT(hardware().session.backlights,
                ElementsAre("intel_backlight 400", "intel_backlight 300", "intel_backlight 200"));
    EXPECT_FLOAT_EQ(panel()->brightness(), 0.2F);
}

TEST_F(LinuxPanelScenario, FollowsTheKeysOfTheKeyboard) {
    hardware().tree.setBacklight("intel_backlight", 800);
    panel()->refresh();
    EXPECT_FLOAT_EQ(panel()->brightness(), 0.8F);
}

TEST_F(LinuxPanelScenario, LeavesTheUserALightAtItsLeftEnd) {
    panel()->setBrightness(0);
    EXPECT_EQ(backlight(), 10U);
}

TEST_F(LinuxPanelScenario, DoesWithoutALoginManager) {
    hardware().session.refuses = true;
    panel()->setBrightness(0.3F);
    EXPECT_EQ(hardware().sysfs.number("/class/backlight/intel_backlight/brightness"), 300U);
}

TEST_F(LinuxPanelScenario, GoesAndComesWithTheLid) {
    computer.closeLid();
    story.waits(1s);
    EXPECT_EQ(panel(), nullptr);
    hardware().tree.setBacklight("intel_backlight", 700);
    computer.openLid();
    story.waits(1s);
    ASSERT_NE(panel(), nullptr);
    EXPECT_FLOAT_EQ(panel()->brightness(), 0.7F);
}

}  // namespace
}  // namespace vantrel::linux
