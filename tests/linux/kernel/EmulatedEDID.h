// The EDID that a monitor of a desk would have.
#pragma once

#include <array>
#include <cstdint>

#include "platform/simulated/Desk.h"

namespace vantrel::test {

// One block, as EDID 1.4 has it.
using EDIDBlock = std::array<std::uint8_t, 128>;

// Vendor and product are cut to 16 bits and the name to 13 bytes, as there is no more
// room. A display without a name has none in its EDID either.
EDIDBlock emulatedEDID(const simulated::DisplayPlan& plan);

}  // namespace vantrel::test
