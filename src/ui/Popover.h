// A panel that hangs under the status item while a person uses it. It closes when
// they turn to something else. Threads: main thread.
#pragma once

#include <functional>

#include "ui/PopoverMode.h"
#include "ui/Size.h"
#include "ui/View.h"

namespace vantrel::ui {

class Popover {
  public:
    virtual ~Popover() = default;

    virtual View& content() = 0;
    virtual bool isShown() const = 0;
    // At the status item, with keyboard input for its contents.
    virtual void show() = 0;
    virtual void close() = 0;
    // Closes it first. A panel, until told.
    virtual void setMode(PopoverMode mode) = 0;
    // After each closing, whoever asked for it.
    virtual void onClose(std::function<void()> action) = 0;
    // Follows nothing by itself.
    virtual Size contentSize() const = 0;
    virtual void setContentSize(Size size) = 0;
};

}  // namespace vantrel::ui
