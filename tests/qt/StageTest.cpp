#include <QApplication>
#include <QPointer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/qt/Stage.h"

namespace vantrel::qt {
namespace {

using namespace ui;

TEST(Stage, SendsWhatAPersonDoes) {
    Stage stage;
    int sent = 0;
    stage.onEvent([&](ElementID, const Event&) { ++sent; });
    stage.send(1, Pressed{});
    EXPECT_EQ(sent, 1);
}

TEST(Stage, SendsNothingWhileTheProgramChangesWhatIsShown) {
    Stage stage;
    int sent = 0;
    stage.onEvent([&](ElementID, const Event&) { ++sent; });
    {
        const Stage::Telling telling(stage);
        stage.send(1, Pressed{});
    }
    EXPECT_EQ(sent, 0);
}

TEST(Stage, DestroysWhatIsBuriedLater) {
    Stage stage;
    const QPointer<QWidget> widget = new QWidget;
    stage.bury(widget);
    EXPECT_FALSE(widget.isNull());
    EXPECT_FALSE(widget->isVisible());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(widget.isNull());
}

TEST(Stage, LeavesNothingBehind) {
    const QPointer<QWidget> widget = new QWidget;
    {
        Stage stage;
        stage.bury(widget);
    }
    EXPECT_TRUE(widget.isNull());
}

}  // namespace
}  // namespace vantrel::qt
