#include "mccs/MonitorCapabilities.h"

#include "mccs/CapabilitiesSection.h"
#include "mccs/VCPSectionReader.h"

namespace vantrel::mccs {

std::optional<MonitorCapabilities> MonitorCapabilities::parse(std::string_view text) {
    const std::optional<std::string_view> model = capabilitiesSection("model", text);
    const std::optional<std::string_view> vcp = capabilitiesSection("vcp", text);
    if (!vcp) return std::nullopt;
    VCPSectionReader reader;
    reader.read(*vcp);
    if (reader.codes().empty()) return std::nullopt;
    return MonitorCapabilities{
        .raw = std::string(text),
        .model = model ? std::optional<std::string>(*model) : std::nullopt,
        .codes = reader.codes(),
        .values = reader.values(),
    };
}

}  // namespace vantrel::mccs
