// How the registry of this kind of computer shows its displays: per display a
// framebuffer with the monitor's identity, then the proxy of its video link.
#pragma once

#include <string>
#include <vector>

#include "platform/simulated/Desk.h"

namespace vantrel::simulated {

// The display's own UUID; by default made of vendor and product as the system
// does it: 4 digits each, the product's two bytes swapped.
std::string edidUUID(const DisplayPlan& display);

// "AppleCLCD2" or "IOMobileFramebufferShim", with UUID and display attributes.
RegistryEntryPlan framebufferEntry(const DisplayPlan& display);
// "DCPAVServiceProxy", with its location.
RegistryEntryPlan proxyEntry(const DisplayPlan& display);

// The displays in order, among entries that have nothing to do with them.
std::vector<RegistryEntryPlan> defaultRegistry(const std::vector<DisplayPlan>& displays);

}  // namespace vantrel::simulated
