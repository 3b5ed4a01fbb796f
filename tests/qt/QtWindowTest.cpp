#include <QApplication>
#include <QScreen>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/SampleTrees.h"
#include "ui/Nodes.h"
#include "ui/qt/QtWindow.h"

namespace vantrel::qt {
namespace {

using namespace ui;

TEST(QtWindow, HasTheSizeOfItsContentsAndCannotBeResized) {
    QtWindow window("Vantrel Settings");
    window.content().renderer().insert(noElement, 0, 1, column(0, {}).width(460).height(360));
    window.content().renderer().finish();
    window.show();
    EXPECT_EQ(window.window().size(), QSize(460, 360));
    EXPECT_EQ(window.window().minimumSize(), window.window().maximumSize());
    EXPECT_EQ(window.window().windowTitle(), "Vantrel Settings");
    window.content().renderer().update(1, column(0, {}).width(460).height(400));
    window.content().renderer().finish();
    EXPECT_EQ(window.window().height(), 400);
}

TEST(QtWindow, IsHiddenByClosingAndShownAgainWhereItWas) {
    QtWindow window("Vantrel Settings");
    window.content().renderer().insert(noElement, 0, 1, column(0, {}).width(460).height(360));
    window.content().renderer().finish();
    window.show();
    window.window().move(30, 40);
    window.window().close();
    EXPECT_FALSE(window.window().isVisible());
    window.show();
    EXPECT_TRUE(window.window().isVisible());
    EXPECT_EQ(window.window().pos(), QPoint(30, 40));
}

TEST(QtWindow, CanBeMinimisedAndClosed) {
    QtWindow window("Vantrel Settings");
    EXPECT_TRUE(window.window().windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_TRUE(window.window().windowFlags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(window.window().windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
}

}  // namespace
}  // namespace vantrel::qt
