#include "ui/qt/SpokenApplication.h"

#include <QApplication>
#include <QMenu>

namespace vantrel::qt {
namespace {

QWidgetList openPopovers() {
    QWidgetList popovers;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        const bool isPopover = window->windowType() == Qt::Popup && qobject_cast<QMenu*>(window) == nullptr;
        if (isPopover && window->isVisible()) popovers.append(window);
    }
    return popovers;
}

}  // namespace

int SpokenApplication::childCount() const {
    return QAccessibleApplication::childCount() + static_cast<int>(openPopovers().size());
}

QAccessibleInterface* SpokenApplication::child(int index) const {
    const int others = QAccessibleApplication::childCount();
    if (index < others) return QAccessibleApplication::child(index);
    return QAccessible::queryAccessibleInterface(openPopovers().value(index - others));
}

int SpokenApplication::indexOfChild(const QAccessibleInterface* child) const {
    const int others = QAccessibleApplication::childCount();
    const auto position = openPopovers().indexOf(qobject_cast<QWidget*>(child->object()));
    return position < 0 ? QAccessibleApplication::indexOfChild(child) : others + static_cast<int>(position);
}

}  // namespace vantrel::qt
