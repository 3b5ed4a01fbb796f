// An output as a protocol for managing outputs describes it, lit or not.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/wayland/Mode.h"
#include "platform/linux/wayland/Shape.h"

namespace vantrel::wayland {

struct Head {
    std::string name;
    std::string make;
    std::string model;
    std::string description;
    std::vector<std::uint8_t> edid;
    bool isEnabled = false;
    std::vector<Mode> modes;
    std::optional<Mode> preferred;
    // Of an enabled one.
    Shape shape;
};

}  // namespace vantrel::wayland
