// News of connectors and I2C buses from udev, after its rules have run.
// Threads: main thread. Lifetime: the descriptors outlive it. Errors: without udev there
// is no news.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/linux/Descriptors.h"
#include "platform/linux/DeviceEvents.h"

struct udev;
struct udev_monitor;

namespace vantrel::linux {

class UdevEvents : public DeviceEvents {
  public:
    explicit UdevEvents(Descriptors& descriptors);
    UdevEvents(const UdevEvents&) = delete;
    UdevEvents& operator=(const UdevEvents&) = delete;
    ~UdevEvents() override;

    void onChange(std::function<void()> changed) override { changed_ = std::move(changed); }

  private:
    void receive();

    udev* const udev_;
    udev_monitor* const monitor_;
    std::function<void()> changed_;
    std::unique_ptr<Descriptors::Watch> watch_;
};

}  // namespace vantrel::linux
