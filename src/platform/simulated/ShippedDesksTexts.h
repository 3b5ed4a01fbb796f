// The files of desks/ as the build put them into the program.
#pragma once

#include <span>

#include "platform/simulated/ShippedText.h"

namespace vantrel::simulated {

// In the order of the names.
std::span<const ShippedText> shippedDesksTexts();

}  // namespace vantrel::simulated
