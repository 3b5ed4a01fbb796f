#include "ui/qt/PaintedButton.h"

#include <QKeyEvent>

#include "ui/qt/Look.h"
#include "ui/qt/Painting.h"

namespace vantrel::qt {

PaintedButton::PaintedButton(QWidget* parent, QAccessible::Role role)
    : QAbstractButton(parent), Spoken(role) {
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
}

bool PaintedButton::event(QEvent* event) {
    ring_.follow(*this, *event);
    return QAbstractButton::event(event);
}

void PaintedButton::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && !event->isAutoRepeat()) {
        click();
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}

void PaintedButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!isEnabled()) painter.setOpacity(disabledOpacity);
    paint(painter);
    if (hasFocus() && ring_.isShown()) paintFocusRing(painter, rect(), cornerRadius());
}

double PaintedButton::cornerRadius() const { return Look::current().pixels(metrics::controlRadius); }

QColor PaintedButton::fill() const {
    const Look& look = Look::current();
    if (isDown()) return look.pressedControl;
    return isEnabled() && underMouse() ? look.hoveredControl : look.control;
}

QColor PaintedButton::borderlessFill() const {
    const Look& look = Look::current();
    if (isDown()) return look.pressedControl;
    return isEnabled() && underMouse() ? look.hoveredControl : QColor(Qt::transparent);
}

}  // namespace vantrel::qt
