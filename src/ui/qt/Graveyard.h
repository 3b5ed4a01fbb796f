// Where the widgets of removed nodes end: off the screen at once. One may be at work
// further up the stack, so it is destroyed later.
// Threads: main thread.
#pragma once

#include <QWidget>

namespace vantrel::qt {

class Graveyard {
  public:
    void bury(QWidget* widget);

  private:
    QWidget buried_;
};

}  // namespace vantrel::qt
