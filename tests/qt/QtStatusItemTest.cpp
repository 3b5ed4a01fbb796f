#include <QApplication>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/Pictures.h"
#include "runtime/RealScheduler.h"
#include "ui/qt/QtStatusItem.h"

namespace vantrel::qt {
namespace {

using namespace ui;

class QtStatusItemTest : public testing::Test {
  protected:
    runtime::RealScheduler scheduler_;
    runtime::MainLoop loop_{scheduler_};
    QtStatusItem item_{loop_};
};

TEST_F(QtStatusItemTest, TellsOfAClick) {
    int clicks = 0;
    item_.onClick([&] { ++clicks; });
    item_.click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(QtStatusItemTest, IgnoresTheClickThatHasClosedThePopoverAlready) {
    int clicks = 0;
    item_.onClick([&] { ++clicks; });
    item_.ignoreClicksForAMoment();
    item_.click();
    EXPECT_EQ(clicks, 0);
    loop_.runFor(std::chrono::milliseconds(300));
    item_.click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(QtStatusItemTest, WorksWithoutATray) {
    item_.setImage({});
    item_.setToolTip("Vantrel");
    EXPECT_TRUE(item_.hasButton());
    EXPECT_FALSE(item_.isHosted());
    EXPECT_TRUE(item_.geometry().isEmpty());
    EXPECT_EQ(item_.screenHeight(), std::nullopt);
}

TEST(TrayInk, IsLightOnADarkPanel) {
    EXPECT_LT(trayInk(lightPalette(), "KDE").lightness(), 100);
    EXPECT_GT(trayInk(darkPalette(), "KDE").lightness(), 200);
    EXPECT_GT(trayInk(lightPalette(), "ubuntu:GNOME").lightness(), 200);
    EXPECT_LT(trayInk(lightPalette(), "").lightness(), 100);
}

}  // namespace
}  // namespace vantrel::qt
