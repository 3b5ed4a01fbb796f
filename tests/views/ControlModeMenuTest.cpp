#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "views/ControlModeMenu.h"
#include "views/ViewDesks.h"
#include "views/ViewRig.h"

namespace vantrel::views {
namespace {

using model::ControlMode;

class ControlModeMenuTest : public testing::Test {
  protected:
    ControlModeMenuTest() {
        view.show([this] { return controlModeMenu(view.environment, view.display()); });
    }

    test::ViewRig view;
};

TEST_F(ControlModeMenuTest, OffersEveryModeByItsTitle) {
    EXPECT_EQ(view.outline(),
              "picker dial.medium [*\"Automatic\", \"DDC/CI\", \"Software\"], note \"DDC/CI when the monitor "
              "answers, software when it doesn't\", named \"Control mode: Automatic\", help\n");
}

TEST_F(ControlModeMenuTest, IsAWandWhileTheSoftwareControls) {
    view.choose("Control mode: Automatic", 2);
    EXPECT_EQ(
        view.outline(),
        "picker wand.and.rays [\"Automatic\", \"DDC/CI\", *\"Software\"], note \"Dims the picture on the "
        "Mac, works over any connection\", named \"Control mode: Software\", help\n");
}

TEST_F(ControlModeMenuTest, IsADialWhileTheMonitorIsControlled) {
    view.choose("Control mode: Automatic", 1);
    EXPECT_EQ(view.outline(),
              "picker dial.medium [\"Automatic\", *\"DDC/CI\", \"Software\"], note \"Changes the monitor's "
              "backlight\", named \"Control mode: DDC/CI\", help\n");
}

TEST_F(ControlModeMenuTest, SetsTheChosenMode) {
    view.choose("Control mode: Automatic", 2);
    EXPECT_EQ(view.display()->controlMode(), ControlMode::software);
    view.choose("Control mode: Software", 0);
    EXPECT_EQ(view.display()->controlMode(), ControlMode::automatic);
}

TEST(ControlModeMenu, IsAWandForAMonitorThatCannotAnswer) {
    test::ViewRig view(test::deskWith(test::deafAlder()));
    view.show([&] { return controlModeMenu(view.environment, view.display()); });
    EXPECT_EQ(std::get<ui::Picker>(view.tree().element).symbol, "wand.and.rays");
}

}  // namespace
}  // namespace vantrel::views
