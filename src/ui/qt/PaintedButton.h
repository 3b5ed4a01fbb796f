// The base of everything that is pressed: pointer, keyboard (space and return), hover
// and focus ring. What a press does to its look, the node decides.
// Threads: main thread.
#pragma once

#include <QAbstractButton>
#include <QPainter>

#include "ui/qt/FocusRing.h"
#include "ui/qt/Spoken.h"

namespace vantrel::qt {

class PaintedButton : public QAbstractButton, public Spoken {
  public:
    PaintedButton(QWidget* parent, QAccessible::Role role);

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) final;

    // With the opacity of what is disabled set already.
    virtual void paint(QPainter& painter) = 0;
    // The rounded corner that the focus ring follows, in pixels.
    virtual double cornerRadius() const;
    // The fill of a control in its state: at rest, under the pointer, held down.
    QColor fill() const;
    // The same for one that has no fill at rest.
    QColor borderlessFill() const;

  private:
    FocusRing ring_;
};

}  // namespace vantrel::qt
