// A mode of an output as it is recognized again: the server's numbers for modes are new in
// every session.
#pragma once

#include <cstdint>
#include <string>

namespace vantrel::randr {

struct Mode {
    std::string name;
    std::uint16_t width = 0;
    std::uint16_t height = 0;
    // Pictures in 1000 seconds.
    std::uint32_t refresh = 0;
    bool operator==(const Mode&) const = default;
};

}  // namespace vantrel::randr
