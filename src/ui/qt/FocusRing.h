// Whether the keyboard is being used on a widget: a pointer needs no ring.
// Threads: main thread.
#pragma once

#include <QWidget>

namespace vantrel::qt {

class FocusRing {
  public:
    // From the widget's event().
    void follow(QWidget& widget, const QEvent& event);
    bool isShown() const { return isShown_; }

  private:
    bool isShown_ = false;
};

}  // namespace vantrel::qt
