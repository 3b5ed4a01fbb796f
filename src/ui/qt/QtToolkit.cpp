#include "ui/qt/QtToolkit.h"

#include <QApplication>
#include <QScreen>

#include "ui/qt/Look.h"
#include "ui/qt/QtPopover.h"
#include "ui/qt/QtStatusItem.h"
#include "ui/qt/QtWindow.h"

namespace vantrel::qt {

std::unique_ptr<ui::StatusItem> QtToolkit::makeStatusItem() { return std::make_unique<QtStatusItem>(loop_); }

std::unique_ptr<ui::Popover> QtToolkit::makePopover(ui::StatusItem& item) {
    return std::make_unique<QtPopover>(dynamic_cast<QtStatusItem&>(item));
}

std::unique_ptr<ui::Window> QtToolkit::makeWindow(const std::string& title) {
    return std::make_unique<QtWindow>(title);
}

std::optional<double> QtToolkit::mainScreenHeight() const {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return std::nullopt;
    return Look::current().points(0, screen->availableGeometry().height()).height;
}

void QtToolkit::activate() {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window) {
            window->raise();
            window->activateWindow();
        }
    }
}

void QtToolkit::terminate() { QCoreApplication::quit(); }

}  // namespace vantrel::qt
