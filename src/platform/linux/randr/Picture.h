// What a CRTC shows and where.
#pragma once

#include <array>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>

#include "platform/linux/randr/Area.h"
#include "platform/linux/randr/Mode.h"
#include "platform/linux/randr/Transform.h"

namespace vantrel::randr {

struct Picture {
    // A picture that is larger than its mode and follows the pointer: total area, tracked
    // area and borders, in the order of RRSetPanning. None when all are 0.
    using Panning = std::array<std::int32_t, 12>;

    Mode mode;
    // What it covers of the screen, turned and scaled.
    Area area;
    // Bits of RandR: how it is turned, and mirrored.
    std::uint16_t rotation = 1;
    Transform transform;
    Panning panning{};
    bool operator==(const Picture&) const = default;

    // The same value again from its JSON, nothing from any other.
    nlohmann::json toJSON() const;
    static std::optional<Picture> fromJSON(const nlohmann::json& json);
};

}  // namespace vantrel::randr
