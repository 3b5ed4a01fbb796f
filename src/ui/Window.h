// An ordinary window with a title, which can be closed and minimised but not
// resized. Closing hides it. Threads: main thread.
#pragma once

#include "ui/View.h"

namespace vantrel::ui {

class Window {
  public:
    virtual ~Window() = default;

    virtual View& content() = 0;
    // In front of everything, with keyboard input; in the middle of the screen the
    // first time.
    virtual void show() = 0;
};

}  // namespace vantrel::ui
