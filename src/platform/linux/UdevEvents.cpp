#include "platform/linux/UdevEvents.h"

#include <libudev.h>

namespace vantrel::linux {

UdevEvents::UdevEvents(Descriptors& descriptors)
    : udev_(udev_new()), monitor_(udev_ != nullptr ? udev_monitor_new_from_netlink(udev_, "udev") : nullptr) {
    if (monitor_ == nullptr) return;
    for (const char* subsystem : {"drm", "i2c-dev"}) {
        udev_monitor_filter_add_match_subsystem_devtype(monitor_, subsystem, nullptr);
    }
    if (udev_monitor_enable_receiving(monitor_) < 0) return;
    watch_ = descriptors.watch(udev_monitor_get_fd(monitor_), [this] { receive(); });
}

UdevEvents::~UdevEvents() {
    // Before the descriptor is closed.
    watch_.reset();
    if (monitor_ != nullptr) udev_monitor_unref(monitor_);
    if (udev_ != nullptr) udev_unref(udev_);
}

// Another program may be told the same: what isn't for this one is filtered by the kernel
// and once more here, so there may be nothing to receive.
void UdevEvents::receive() {
    bool hasNews = false;
    while (udev_device* device = udev_monitor_receive_device(monitor_)) {
        udev_device_unref(device);
        hasNews = true;
    }
    if (hasNews && changed_) changed_();
}

}  // namespace vantrel::linux
