// The current and maximum value of one VCP code as a monitor reported them.
#pragma once

#include <cstdint>

namespace vantrel::ddc {

struct VCPReading {
    std::uint16_t current = 0;
    std::uint16_t maximum = 0;
    bool operator==(const VCPReading&) const = default;
};

}  // namespace vantrel::ddc
