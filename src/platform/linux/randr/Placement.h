// Everything that brings a picture back to an output just as it was, as text that outlives
// the program and the X server.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/randr/Picture.h"

namespace vantrel::randr {

struct Placement {
    Picture picture;
    bool isPrimary = false;
    // The server's number for its CRTC.
    std::uint32_t crtc = 0;
    // The outputs that showed some of the same area.
    std::vector<std::string> shared;
    bool operator==(const Placement&) const = default;

    // One line. Nothing from a text that isn't one of ours.
    std::string text() const;
    static std::optional<Placement> parse(const std::string& text);
};

}  // namespace vantrel::randr
