// Until when a call may wait for the compositor.
#pragma once

#include <algorithm>
#include <chrono>

#include "runtime/Clock.h"

namespace vantrel::wayland {

class Deadline {
  public:
    Deadline(const runtime::Clock& clock, runtime::MonotonicClock::duration patience)
        : clock_(clock), end_(clock.now() + patience) {}

    // What is left, as poll() takes it; 0 when it is over.
    int milliseconds() const {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end_ - clock_.now());
        return static_cast<int>(std::max(left.count(), decltype(left)::rep{0}));
    }

  private:
    const runtime::Clock& clock_;
    const runtime::MonotonicTime end_;
};

}  // namespace vantrel::wayland
