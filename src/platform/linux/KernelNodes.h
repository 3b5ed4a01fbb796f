// The device files in /dev. Main thread.
#pragma once

#include "platform/linux/DeviceNodes.h"

namespace vantrel::linux {

class KernelNodes : public DeviceNodes {
  public:
    Access access(I2CDevices::Bus bus) override;
    std::optional<std::string> group(I2CDevices::Bus bus) override;
};

}  // namespace vantrel::linux
