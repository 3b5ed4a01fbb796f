// News of devices when a test has some. Main thread.
#pragma once

#include <functional>
#include <utility>

#include "platform/linux/DeviceEvents.h"

namespace vantrel::linux {

class FakeDeviceEvents : public DeviceEvents {
  public:
    void announce() const {
        if (changed_) changed_();
    }
    bool isHeard() const { return changed_ != nullptr; }
    void onChange(std::function<void()> changed) override { changed_ = std::move(changed); }

  private:
    std::function<void()> changed_;
};

}  // namespace vantrel::linux
