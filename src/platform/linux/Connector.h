// A socket of a graphics device, as the kernel sees it (DRM connector).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/Sysfs.h"

namespace vantrel::linux {

struct Connector {
    // Its place below the root of sysfs: "/class/drm/card0-DP-1".
    std::string folder;
    // "DP-1"; another graphics device may have one of that name too.
    std::string name;
    // Where the graphics device is in the tree of devices; the same at every start.
    std::string device;
    bool isConnected = false;
    // Whether the kernel sends a picture through it.
    bool isEnabled = false;
    // Empty when there is none; not always a right one.
    std::vector<std::uint8_t> edid;

    bool operator==(const Connector&) const = default;

    bool isBuiltIn() const { return isBuiltIn(name); }
    // Whether the monitor on a connector of that name is part of the computer.
    static bool isBuiltIn(std::string_view name);

    // Every connector that a monitor can be plugged into, by device and name.
    static std::vector<Connector> list(const Sysfs& sysfs);
};

}  // namespace vantrel::linux
