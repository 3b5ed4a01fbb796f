#include "ui/qt/SliderWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimerEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "ui/qt/Look.h"
#include "ui/qt/Painting.h"
#include "ui/qt/ScrollView.h"

namespace vantrel::qt {
namespace {

constexpr int positionsPerStep = 10;
constexpr int mostPositions = 10'000'000;
constexpr int stepsPerPage = 10;
// For the focus ring around the knob, on each side.
constexpr double ringRoom = 2;
// In eighths of a degree, as a wheel reports them.
constexpr double wheelNotch = 120;
// For a model that doesn't take over what a person did.
constexpr int settlingMilliseconds = 250;

}  // namespace

SliderWidget::SliderWidget(QWidget* parent) : QSlider(Qt::Horizontal, parent), Spoken(QAccessible::Slider) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    // A person's moves; also those that assistive technology makes for them.
    QObject::connect(this, &QSlider::valueChanged, this, [this](int position) {
        settling_.start(settlingMilliseconds, this);
        if (action_) action_(valueAt(position));
    });
}

void SliderWidget::show(const ui::Slider& slider, const QString& spoken) {
    const bool isOtherText = spoken != spokenValue_;
    newest_ = slider;
    spokenValue_ = spoken;
    if (!isSliderDown()) showNewest();
    if (isOtherText && QAccessible::isActive()) {
        QAccessibleValueChangeEvent event(this, spoken);
        QAccessible::updateAccessibility(&event);
    }
}

void SliderWidget::showNewest() {
    settling_.stop();
    const QSignalBlocker blocker(this);
    const double range = std::max(0.0, newest_.maximum - newest_.minimum);
    const double steps = newest_.step > 0 ? range / newest_.step : 100;
    setRange(0,
             static_cast<int>(std::clamp(std::round(steps * positionsPerStep), 1.0, double(mostPositions))));
    setSingleStep(positionsPerStep);
    setPageStep(positionsPerStep * stepsPerPage);
    setValue(positionOf(newest_.value));
    update();
}

int SliderWidget::positionOf(double value) const {
    const double range = newest_.maximum - newest_.minimum;
    if (range <= 0) return 0;
    const double share = std::clamp((value - newest_.minimum) / range, 0.0, 1.0);
    return static_cast<int>(std::lround(share * maximum()));
}

double SliderWidget::valueAt(int position) const {
    if (position >= maximum()) return newest_.maximum;
    return newest_.minimum + (newest_.maximum - newest_.minimum) * position / maximum();
}

bool SliderWidget::event(QEvent* event) {
    ring_.follow(*this, *event);
    return QSlider::event(event);
}

void SliderWidget::timerEvent(QTimerEvent* event) {
    if (event->timerId() != settling_.timerId()) {
        QSlider::timerEvent(event);
    } else if (isSliderDown()) {
        settling_.stop();
    } else {
        showNewest();
    }
}

void SliderWidget::slideTo(int position) {
    setValue(std::clamp(position, minimum(), maximum()));
    update();
}

void SliderWidget::moveBySteps(double steps) {
    slideTo(value() + static_cast<int>(std::lround(steps * positionsPerStep)));
}

void SliderWidget::keyPressEvent(QKeyEvent* event) {
    const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    switch (event->key()) {
        case Qt::Key_Right:
            moveBySteps(forward);
            break;
        case Qt::Key_Left:
            moveBySteps(-forward);
            break;
        case Qt::Key_Up:
            moveBySteps(1);
            break;
        case Qt::Key_Down:
            moveBySteps(-1);
            break;
        case Qt::Key_PageUp:
            moveBySteps(stepsPerPage);
            break;
        case Qt::Key_PageDown:
            moveBySteps(-stepsPerPage);
            break;
        case Qt::Key_Home:
            slideTo(minimum());
            break;
        case Qt::Key_End:
            slideTo(maximum());
            break;
        default:
            event->ignore();
            return;
    }
    event->accept();
}

bool SliderWidget::isScrolledPast(const QWheelEvent& turn) const {
    for (const QWidget* place = parentWidget(); place != nullptr; place = place->parentWidget()) {
        const auto* const view = dynamic_cast<const ScrollView*>(place);
        if (view != nullptr && view->keeps(turn)) return true;
    }
    return false;
}

void SliderWidget::wheelEvent(QWheelEvent* event) {
    event->setAccepted(!isScrolledPast(*event));
    if (!event->isAccepted()) return;
    if (isSliderDown() || newest_.step <= 0) return;
    const QPoint angle = event->angleDelta();
    wheel_ += std::abs(angle.y()) >= std::abs(angle.x()) ? angle.y() : -angle.x();
    // Fine wheels and touch pads send parts of a notch.
    const double notches = std::trunc(wheel_ / wheelNotch);
    wheel_ -= notches * wheelNotch;
    if (notches != 0) moveBySteps(notches * newest_.wheelStep / newest_.step);
}

void SliderWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const QRectF handle = knob();
    grip_ = handle.contains(event->position()) ? event->position().x() - handle.center().x() : 0;
    setSliderDown(true);
    slideTo(event->position());
    event->accept();
}

void SliderWidget::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown()) slideTo(event->position());
}

void SliderWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !isSliderDown()) return;
    setSliderDown(false);
    // What the last move led to may still be on its way.
    settling_.start(settlingMilliseconds, this);
    update();
}

void SliderWidget::slideTo(const QPointF& pointer) {
    const double side = knob().width();
    const double way = width() - side - 2 * ringRoom;
    const double share = way > 0 ? (pointer.x() - grip_ - side / 2 - ringRoom) / way : 0;
    slideTo(static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * maximum())));
}

QRectF SliderWidget::knob() const {
    const double side = Look::current().pixels(metrics::sliderKnob);
    const double share = maximum() > 0 ? double(value()) / maximum() : 0;
    return {ringRoom + share * (width() - side - 2 * ringRoom), (height() - side) / 2, side, side};
}

void SliderWidget::paintEvent(QPaintEvent*) {
    const Look& look = Look::current();
    QPainter painter(this);
    if (!isEnabled()) painter.setOpacity(disabledOpacity);
    const QRectF handle = knob();
    const double thickness = look.pixels(metrics::sliderTrack);
    const QRectF track(ringRoom, (height() - thickness) / 2, width() - 2 * ringRoom, thickness);
    paintRounded(painter, track, thickness / 2, look.track);
    QRectF done = track;
    done.setRight(handle.center().x());
    paintRounded(painter, done, thickness / 2, look.accent);
    paintRounded(painter, handle.adjusted(0.5, 0.5, -0.5, -0.5), handle.width() / 2, look.knob,
                 look.knobBorder);
    if (isSliderDown())
        paintRounded(painter, handle.adjusted(1, 1, -1, -1), handle.width() / 2, look.control);
    if (hasFocus() && ring_.isShown()) {
        const QRectF ring = handle.adjusted(-ringRoom, -ringRoom, ringRoom, ringRoom);
        paintFocusRing(painter, ring, ring.width() / 2);
    }
}

}  // namespace vantrel::qt
