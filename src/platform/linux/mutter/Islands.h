// Closes the gaps of a layout in which something is missing.
#pragma once

#include <vector>

#include "platform/linux/mutter/LogicalMonitor.h"

namespace vantrel::mutter::Islands {

// What hangs together with the first part, and then all the others by islands.
std::vector<std::vector<LogicalMonitor>> find(std::vector<LogicalMonitor> parts);

// Moves islands to one another, each by as little as possible, until there is one only.
std::vector<LogicalMonitor> joined(std::vector<LogicalMonitor> parts);

}  // namespace vantrel::mutter::Islands
