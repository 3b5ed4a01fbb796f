// The widget of a slider: whole positions, fine enough between its ends for a value
// to be shown where it is, and how a person moves it.
// Threads: main thread.
#pragma once

#include <QBasicTimer>
#include <QSlider>
#include <functional>

#include "ui/Element.h"
#include "ui/qt/FocusRing.h"
#include "ui/qt/Spoken.h"

namespace vantrel::qt {

class SliderWidget : public QSlider, public Spoken {
  public:
    explicit SliderWidget(QWidget* parent);

    // After each move that a person made.
    void onSlide(std::function<void(double)> action) { action_ = std::move(action); }
    // What the program wants to be shown.
    void show(const ui::Slider& slider, const QString& spoken);

    QString spokenValue() const override { return spokenValue_; }

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    // Whether it only came under the pointer: nobody who scrolls means it.
    bool isScrolledPast(const QWheelEvent& turn) const;
    void showNewest();
    void moveBySteps(double steps);
    void slideTo(int position);
    void slideTo(const QPointF& pointer);
    int positionOf(double value) const;
    double valueAt(int position) const;
    QRectF knob() const;

    ui::Slider newest_;
    QString spokenValue_;
    std::function<void(double)> action_;
    QBasicTimer settling_;
    FocusRing ring_;
    // From the knob's middle to where it was taken.
    double grip_ = 0;
    double wheel_ = 0;
};

}  // namespace vantrel::qt
