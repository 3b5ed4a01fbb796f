#include "ui/qt/Graveyard.h"

#include <QMenu>

namespace vantrel::qt {

void Graveyard::bury(QWidget* widget) {
    widget->blockSignals(true);
    // Its menus are windows: they would stay, and offer what is gone.
    for (QMenu* const menu : widget->findChildren<QMenu*>()) menu->close();
    widget->hide();
    widget->setParent(&buried_);
    widget->deleteLater();
}

}  // namespace vantrel::qt
