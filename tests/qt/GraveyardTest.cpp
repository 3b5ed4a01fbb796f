#include <QApplication>
#include <QPointer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/qt/Graveyard.h"

namespace vantrel::qt {
namespace {

TEST(Graveyard, DestroysWhatIsBuriedLater) {
    Graveyard graveyard;
    const QPointer<QWidget> widget = new QWidget;
    graveyard.bury(widget);
    EXPECT_FALSE(widget.isNull());
    EXPECT_FALSE(widget->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}

TEST(Graveyard, LeavesNothingBehind) {
    const QPointer<QWidget> widget = new QWidget;
    {
        Graveyard graveyard;
        graveyard.bury(widget);
    }
    EXPECT_TRUE(widget.isNull());
}

}  // namespace
}  // namespace vantrel::qt
