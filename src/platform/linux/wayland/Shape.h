// How an output shows its picture; what isn't told is left to the compositor.
//
// As text it is one line that a later run of the program reads:
// "wayland mode=1920x1080@60000 position=0,0 transform=0 scale=256".
#pragma once

#include <optional>
#include <string>

#include "platform/linux/wayland/Mode.h"

namespace vantrel::wayland {

struct Shape {
    struct Position {
        int x = 0;
        int y = 0;
        bool operator==(const Position&) const = default;
    };

    // A scale of 1: wl_fixed_t has 8 bits behind the point.
    static constexpr int unscaled = 256;

    std::optional<Mode> mode;
    std::optional<Position> position;
    // wl_output.transform: an odd one turns the picture on its side.
    std::optional<int> transform;
    // As wl_fixed_t.
    std::optional<int> scale;
    // What KDE's compositor calls the policy for variable refresh rates.
    std::optional<int> variableRefresh;
    bool operator==(const Shape&) const = default;

    std::string line() const;
    // Nothing for a line that line() can't have given.
    static std::optional<Shape> read(const std::string& line);

    // The first column to the right of the picture, where its mode and position are known.
    std::optional<int> rightEdge() const;
};

}  // namespace vantrel::wayland
