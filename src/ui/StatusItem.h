// The program's item in the menu bar, or in the tray of a desktop. It stays until
// it is destroyed. Threads: main thread.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "ui/Drawing.h"

namespace vantrel::ui {

class StatusItem {
  public:
    virtual ~StatusItem() = default;

    // Whether it has something to click on: without one the rest does nothing.
    virtual bool hasButton() const = 0;
    // Whether the desktop shows it at present. Some show it only after a while, some
    // never.
    virtual bool isHosted() const = 0;
    // A template: only its opacity matters, the system gives it its colour.
    virtual void setImage(const Drawing& image) = 0;
    virtual void setToolTip(const std::string& text) = 0;
    virtual void onClick(std::function<void()> action) = 0;
    // What a program may use of the screen that it is on; nothing when that can't
    // be told.
    virtual std::optional<double> screenHeight() const = 0;
};

}  // namespace vantrel::ui
