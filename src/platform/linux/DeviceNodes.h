// What a user may do with the device files of I2C buses.
// Threads: main thread.
#pragma once

#include <optional>
#include <string>

#include "platform/linux/I2CDevices.h"

namespace vantrel::linux {

class DeviceNodes {
  public:
    enum class Access { missing, forbidden, allowed };

    virtual ~DeviceNodes() = default;
    virtual Access access(I2CDevices::Bus bus) = 0;
    // The group that may use the bus; nothing when it is root's own, or there is no file.
    virtual std::optional<std::string> group(I2CDevices::Bus bus) = 0;
};

}  // namespace vantrel::linux
