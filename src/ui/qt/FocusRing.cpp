#include "ui/qt/FocusRing.h"

#include <QFocusEvent>

namespace vantrel::qt {

void FocusRing::follow(QWidget& widget, const QEvent& event) {
    const bool before = isShown_;
    switch (event.type()) {
        case QEvent::FocusIn: {
            const auto reason = static_cast<const QFocusEvent&>(event).reason();
            if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                reason == Qt::ShortcutFocusReason) {
                isShown_ = true;
            } else if (reason == Qt::MouseFocusReason) {
                isShown_ = false;
            }
            break;
        }
        case QEvent::FocusOut: {
            const auto reason = static_cast<const QFocusEvent&>(event).reason();
            // Another window may give the focus back.
            if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) isShown_ = false;
            break;
        }
        case QEvent::KeyPress:
            isShown_ = widget.hasFocus();
            break;
        case QEvent::MouseButtonPress:
            isShown_ = false;
            break;
        default:
            break;
    }
    if (before != isShown_) widget.update();
}

}  // namespace vantrel::qt
