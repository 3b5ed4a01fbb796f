#include "ui/qt/Stage.h"

#include <QMenu>

namespace vantrel::qt {

void Stage::send(ui::ElementID element, const ui::Event& event) {
    if (telling_ > 0 || !handler_) return;
    const auto handler = handler_;
    handler(element, event);
}

void Stage::bury(QWidget* widget) {
    widget->blockSignals(true);
    // Its menus are windows: they would stay, and offer what is gone.
    for (QMenu* const menu : widget->findChildren<QMenu*>()) menu->close();
    widget->hide();
    widget->setParent(&buried_);
    widget->deleteLater();
}

}  // namespace vantrel::qt
