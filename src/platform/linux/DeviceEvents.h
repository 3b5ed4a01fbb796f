// News of monitors plugged in and out, and of buses that come and go.
// Threads: main thread.
#pragma once

#include <functional>

namespace vantrel::linux {

class DeviceEvents {
  public:
    virtual ~DeviceEvents() = default;
    // Called after something has changed, not what; for the life of this object.
    virtual void onChange(std::function<void()>) = 0;
};

}  // namespace vantrel::linux
