#include <QApplication>
#include <QScreen>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/ViewBench.h"
#include "ui/qt/QtPopover.h"

namespace vantrel::qt {
namespace {

using namespace ui;

class QtPopoverTest : public testing::Test {
  protected:
    QtPopoverTest() {
        popover_.onClose([this] { ++closings_; });
        popover_.setContentSize({340, 400});
    }

    runtime::RealScheduler scheduler_;
    runtime::MainLoop loop_{scheduler_};
    QtStatusItem item_{loop_};
    QtPopover popover_{item_};
    int closings_ = 0;
};

TEST_F(QtPopoverTest, IsShownWhollyOnTheScreen) {
    popover_.show();
    EXPECT_TRUE(popover_.isShown());
    EXPECT_EQ(popover_.window().size(), QSize(340, 400));
    EXPECT_TRUE(QApplication::primaryScreen()->availableGeometry().contains(popover_.window().geometry()));
}

TEST_F(QtPopoverTest, FollowsItsContentSizeWhileItIsShown) {
    popover_.show();
    popover_.setContentSize({340, 500});
    EXPECT_EQ(popover_.contentSize(), (Size{340, 500}));
    EXPECT_EQ(popover_.window().height(), 500);
}

TEST_F(QtPopoverTest, IsNeverLargerThanTheScreen) {
    popover_.show();
    popover_.setContentSize({340, 9000});
    EXPECT_TRUE(QApplication::primaryScreen()->availableGeometry().contains(popover_.window().geometry()));
}

TEST_F(QtPopoverTest, TellsOfEachClosing) {
    popover_.show();
    popover_.close();
    EXPECT_FALSE(popover_.isShown());
    EXPECT_EQ(closings_, 1);
    popover_.close();
    EXPECT_EQ(closings_, 1);
}

TEST_F(QtPopoverTest, ClosesOnEscape) {
    popover_.show();
    ViewBench::press(popover_.window(), Qt::Key_Escape);
    EXPECT_EQ(closings_, 1);
}

TEST_F(QtPopoverTest, ClosesOnAPressOutsideWhichDoesNotReachTheIcon) {
    int clicks = 0;
    item_.onClick([&] { ++clicks; });
    popover_.show();
    ViewBench::mouse(popover_.window(), QEvent::MouseButtonPress, {-20, -20});
    EXPECT_EQ(closings_, 1);
    item_.click();
    EXPECT_EQ(clicks, 0);
}

TEST_F(QtPopoverTest, StaysOnAPressInside) {
    popover_.show();
    ViewBench::mouse(popover_.window(), QEvent::MouseButtonPress, {20, 20});
    EXPECT_TRUE(popover_.isShown());
}

TEST_F(QtPopoverTest, HasTheKeyboardForItsContents) {
    popover_.show();
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_TRUE(popover_.window().isAncestorOf(QApplication::focusWidget()));
}

TEST_F(QtPopoverTest, CanBeAnOrdinaryWindow) {
    popover_.setMode(ui::PopoverMode::window);
    popover_.show();
    EXPECT_EQ(popover_.window().windowType(), Qt::Window);
    EXPECT_EQ(popover_.window().minimumSize(), popover_.window().maximumSize());
    ViewBench::mouse(popover_.window(), QEvent::MouseButtonPress, {-20, -20});
    EXPECT_TRUE(popover_.isShown());
    popover_.window().close();
    EXPECT_EQ(closings_, 1);
}

TEST_F(QtPopoverTest, ShowsTheSameContentsInAnotherMode) {
    runtime::RealScheduler scheduler;
    popover_.content().renderer().insert(noElement, 0, 1, text("Vantrel").key("text"));
    popover_.content().renderer().finish();
    popover_.show();
    popover_.setMode(ui::PopoverMode::window);
    EXPECT_EQ(closings_, 1);
    popover_.show();
    EXPECT_TRUE(popover_.window().findChild<QWidget*>("text")->isVisible());
}

}  // namespace
}  // namespace vantrel::qt
