#include <QApplication>
#include <QMenu>
#include <QWidget>
#include <gtest/gtest.h>

#include "ui/qt/SpokenApplication.h"

namespace vantrel::qt {
namespace {

bool isFound(QWidget& window) {
    QAccessibleInterface* const application = QAccessible::queryAccessibleInterface(qApp);
    for (int i = 0; i < application->childCount(); ++i) {
        if (application->child(i)->object() == &window) return true;
    }
    return false;
}

TEST(SpokenApplication, HasAnOpenPopover) {
    QWidget popover(nullptr, Qt::Popup);
    popover.show();
    EXPECT_TRUE(isFound(popover));
}

TEST(SpokenApplication, HasNoPopoverThatIsClosed) {
    QWidget popover(nullptr, Qt::Popup);
    popover.show();
    popover.hide();
    EXPECT_FALSE(isFound(popover));
}

TEST(SpokenApplication, LeavesAMenuToItsButton) {
    QMenu menu;
    menu.addAction("Something");
    menu.popup({});
    EXPECT_FALSE(isFound(menu));
}

TEST(SpokenApplication, HasEachWindowOnce) {
    QWidget window;
    window.show();
    QWidget popover(nullptr, Qt::Popup);
    popover.show();
    QAccessibleInterface* const application = QAccessible::queryAccessibleInterface(qApp);
    for (int i = 0; i < application->childCount(); ++i) {
        EXPECT_EQ(application->indexOfChild(application->child(i)), i);
    }
    EXPECT_TRUE(isFound(window));
}

}  // namespace
}  // namespace vantrel::qt
