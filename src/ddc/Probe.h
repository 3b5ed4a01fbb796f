// A diagnostic that exercises the whole DDC/CI path without an interface: what
// every external monitor answers, and which input profile applies to it.
//
// Blocks for the transfers, several seconds with several monitors. Nothing
// aborts it: what failed is printed as such. Main thread.
#pragma once

#include <ostream>

#include "platform/Platform.h"

namespace vantrel::ddc::Probe {

void run(platform::Platform& platform, std::ostream& output);

}  // namespace vantrel::ddc::Probe
