#include <QFocusEvent>
#include <QKeyEvent>
#include <gtest/gtest.h>

#include "ui/qt/FocusRing.h"

namespace vantrel::qt {
namespace {

class FocusRingTest : public testing::Test {
  protected:
    void focus(QEvent::Type type, Qt::FocusReason reason) {
        ring_.follow(widget_, QFocusEvent(type, reason));
    }

    QWidget widget_;
    FocusRing ring_;
};

TEST_F(FocusRingTest, IsShownWhenTheKeyboardBringsTheFocus) {
    focus(QEvent::FocusIn, Qt::TabFocusReason);
    EXPECT_TRUE(ring_.isShown());
    focus(QEvent::FocusOut, Qt::BacktabFocusReason);
    EXPECT_FALSE(ring_.isShown());
}

TEST_F(FocusRingTest, IsNotShownForThePointer) {
    focus(QEvent::FocusIn, Qt::MouseFocusReason);
    EXPECT_FALSE(ring_.isShown());
    focus(QEvent::FocusIn, Qt::TabFocusReason);
    ring_.follow(widget_, QEvent(QEvent::MouseButtonPress));
    EXPECT_FALSE(ring_.isShown());
}

TEST_F(FocusRingTest, IsThereAgainWhenAMenuHasClosed) {
    focus(QEvent::FocusIn, Qt::TabFocusReason);
    focus(QEvent::FocusOut, Qt::PopupFocusReason);
    focus(QEvent::FocusIn, Qt::PopupFocusReason);
    EXPECT_TRUE(ring_.isShown());
}

}  // namespace
}  // namespace vantrel::qt
