// What a desktop's toolkit makes for a program. Threads: main thread. Lifetime: it
// outlives what it makes.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "ui/Popover.h"
#include "ui/StatusItem.h"
#include "ui/Window.h"

namespace vantrel::ui {

class Toolkit {
  public:
    virtual ~Toolkit() = default;

    virtual std::unique_ptr<StatusItem> makeStatusItem() = 0;
    // Hangs under `item`, which outlives it.
    virtual std::unique_ptr<Popover> makePopover(StatusItem& item) = 0;
    virtual std::unique_ptr<Window> makeWindow(const std::string& title) = 0;
    // What a program may use of the main screen; nothing without one.
    virtual std::optional<double> mainScreenHeight() const = 0;
    // Brings the program to the front.
    virtual void activate() = 0;
    // Ends the program's main loop, after what is being done now.
    virtual void terminate() = 0;
};

}  // namespace vantrel::ui
