// The files of stories/ as the build put them into the program.
#pragma once

#include <span>

#include "platform/simulated/ShippedText.h"

namespace vantrel::app {

// In the order of the names.
std::span<const simulated::ShippedText> shippedStoriesTexts();

}  // namespace vantrel::app
