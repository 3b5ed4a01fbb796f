// Decides how the popover follows the size that its content asks for: once for all
// requests of one pass of the main loop, not for small shrinks, and not for ever
// when content and popover keep changing each other.
//
// Main thread. Knows no toolkit: it is told of requests, times and the closing.
#pragma once

#include <optional>
#include <vector>

#include "runtime/Time.h"
#include "ui/Size.h"

namespace vantrel::app {

class PopoverSizer {
  public:
    enum class Decision {
        leave,
        resize,  // to requestedSize()
        hold,    // it kept resizing: said once, then left alone until it has closed
    };

    // The popover has this size already.
    explicit PopoverSizer(ui::Size requested) : requested_(requested) {}

    // True when apply() is to be called later in this pass; otherwise it will be
    // already, and takes this size.
    bool request(ui::Size size);
    Decision apply(runtime::MonotonicTime now);
    // The next opening starts with a fresh count.
    void popoverDidClose();

    // The size last given to the popover.
    ui::Size requestedSize() const { return requested_; }
    // The size that was last considered.
    ui::Size askedSize() const { return asked_; }

  private:
    ui::Size requested_;
    ui::Size asked_;
    std::optional<ui::Size> pending_;
    // When the popover was resized during this opening, within the last second.
    std::vector<runtime::MonotonicTime> recentResizes_;
    bool isHeld_ = false;
};

}  // namespace vantrel::app
