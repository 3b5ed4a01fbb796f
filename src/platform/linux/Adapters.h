// Which I2C bus leads to which monitor.
//
// A connector names its bus in one of three ways, by its driver: the adapter is its child
// (the AUX channel of DisplayPort), a link "ddc" leads to it, or nothing does, and only
// the EDID at the far end tells.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/linux/Connector.h"
#include "platform/linux/I2CDevices.h"

namespace vantrel::linux {

struct Adapter {
    I2CDevices::Bus bus = 0;
    // Where it is in the tree of devices: another adapter may get the bus's number later.
    std::string device;
    bool operator==(const Adapter&) const = default;
};

namespace Adapters {

// Every adapter that is part of this graphics device.
std::vector<Adapter> ofDevice(const Sysfs& sysfs, const std::string& device);
// By child or link; nothing when there is neither.
std::optional<Adapter> ofConnector(const Sysfs& sysfs, const Connector& connector);
// The first of them behind which a monitor answers with this EDID.
std::optional<Adapter> withEDID(I2CDevices& devices, const std::vector<Adapter>& adapters,
                                const std::vector<std::uint8_t>& edid);
// Whether the adapter is still there, under its number.
bool isThere(const Sysfs& sysfs, const Adapter& adapter);

}  // namespace Adapters
}  // namespace vantrel::linux
