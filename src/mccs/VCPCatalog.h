// The table of known VCP codes, as it is written down and as it is looked up.
#pragma once

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "mccs/VCPInfo.h"

namespace vantrel::mccs {

using VCPCatalogEntry = std::pair<std::uint8_t, VCPInfo>;
using VCPCatalog = std::map<std::uint8_t, VCPInfo>;

// The entries as written.
std::vector<VCPCatalogEntry> knownVCPCodes();

// Stops the program when a code occurs twice: one of the two would be lost.
VCPCatalog vcpCatalog(std::vector<VCPCatalogEntry> entries);

}  // namespace vantrel::mccs
