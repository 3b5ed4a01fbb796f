#include "mccs/VCPCatalog.h"

#include <string>

#include "runtime/Fatal.h"
#include "text/Hex.h"

namespace vantrel::mccs {

VCPCatalog vcpCatalog(std::vector<VCPCatalogEntry> entries) {
    VCPCatalog catalog;
    for (VCPCatalogEntry& entry : entries) {
        const std::uint8_t code = entry.first;
        const bool isNew = catalog.insert(std::move(entry)).second;
        runtime::require(isNew, "VCP code 0x" + text::upperHex(code) + " is twice in the catalog");
    }
    return catalog;
}

}  // namespace vantrel::mccs
