// Which of the desktop's outputs is which of the kernel's connectors. Both tell a name and
// the monitor's EDID, but names differ ("HDMI-A-1", "HDMI-1", "HDMI-0") and equal monitors
// may have equal EDIDs.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/linux/Desktop.h"
#include "platform/linux/Inventory.h"

namespace vantrel::linux::OutputMatch {

// By display, the output's name. No output twice; a display that the desktop doesn't know
// is left out. EDID and name together count most, then the EDID, then the name alone, if
// nothing speaks against it.
std::map<platform::DisplayID, std::string> match(const Inventory::Displays& displays,
                                                 const std::vector<Desktop::Output>& outputs);

// As most desktops shorten it: "HDMI-A-1" is "HDMI-1".
std::string shortName(const std::string& connector);

}  // namespace vantrel::linux::OutputMatch
