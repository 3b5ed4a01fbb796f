// A rectangle of the screen, in pixels.
#pragma once

#include <cstdint>

namespace vantrel::randr {

struct Area {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    std::int32_t right() const { return x + width; }
    std::int32_t bottom() const { return y + height; }
    bool overlaps(const Area& other) const {
        return x < other.right() && other.x < right() && y < other.bottom() && other.y < bottom();
    }
    bool operator==(const Area&) const = default;
};

}  // namespace vantrel::randr
