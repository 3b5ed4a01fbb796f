// A monitor to simulate, from the transfers with a real one.
#pragma once

#include <vector>

#include "platform/Transfer.h"
#include "platform/simulated/Desk.h"

namespace vantrel::app::RecordedMonitor {

// Beside the recording itself it has what valid replies said: values, codes that it
// lacks, inputs, the capabilities string as far as it came in one piece. One that
// acknowledged nothing is dead.
simulated::MonitorPlan make(std::vector<platform::Transfer> transfers);

}  // namespace vantrel::app::RecordedMonitor
