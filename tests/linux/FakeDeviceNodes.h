// Device files that a user may use, unless a test says otherwise. Main thread.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/linux/DeviceNodes.h"

namespace vantrel::linux {

class FakeDeviceNodes : public DeviceNodes {
  public:
    std::map<I2CDevices::Bus, Access> exceptions;
    std::map<I2CDevices::Bus, std::string> groups;

    Access access(I2CDevices::Bus bus) override {
        const auto found = exceptions.find(bus);
        return found == exceptions.end() ? Access::allowed : found->second;
    }
    std::optional<std::string> group(I2CDevices::Bus bus) override {
        const auto found = groups.find(bus);
        return found == groups.end() ? std::nullopt : std::optional(found->second);
    }
};

}  // namespace vantrel::linux
