#include "ui/qt/ProgressItem.h"

#include <QBasicTimer>
#include <QPainter>
#include <QTimerEvent>
#include <algorithm>

#include "ui/qt/Look.h"
#include "ui/qt/Spoken.h"

namespace vantrel::qt {
namespace {

constexpr int millisecondsPerStep = 80;
constexpr int stepsPerTurn = 12;
// Of a QPainter's angles.
constexpr int turn = 360 * 16;

class Spinner : public QWidget, public Spoken {
  public:
    explicit Spinner(QWidget* parent) : QWidget(parent), Spoken(QAccessible::Indicator) {}

    void addState(QAccessible::State& state) const override { state.busy = true; }

  protected:
    void showEvent(QShowEvent*) override { timer_.start(millisecondsPerStep, this); }
    void hideEvent(QHideEvent*) override { timer_.stop(); }
    void timerEvent(QTimerEvent*) override {
        step_ = (step_ + 1) % stepsPerTurn;
        update();
    }

    void paintEvent(QPaintEvent*) override {
        const Look& look = Look::current();
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const double side = std::min(width(), height());
        const double thickness = side / 8;
        QRectF ring(0, 0, side - 2 * thickness, side - 2 * thickness);
        ring.moveCenter(QRectF(rect()).center());
        painter.setPen(QPen(look.track, thickness));
        painter.drawEllipse(ring);
        painter.setPen(QPen(look.secondaryText, thickness, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(ring, turn / 4 - step_ * turn / stepsPerTurn, -turn / 4);
    }

  private:
    QBasicTimer timer_;
    int step_ = 0;
};

}  // namespace

ProgressItem::ProgressItem(const Making& making) : Item(making, new Spinner(making.parent)) {}

layout::WidthRange ProgressItem::widths() const {
    const int side = Look::current().pixels(metrics::progressSide);
    return {side, side};
}

int ProgressItem::height(int) const { return Look::current().pixels(metrics::progressSide); }

}  // namespace vantrel::qt
