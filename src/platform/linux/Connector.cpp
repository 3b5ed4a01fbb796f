#include "platform/linux/Connector.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace vantrel::linux {
namespace {

constexpr const char* drm = "/class/drm";
// Kernel documentation, "DRM connector types": what is soldered to a panel. A writeback
// connector is a way back into memory.
constexpr std::array<std::string_view, 4> builtInTypes{"eDP-", "LVDS-", "DSI-", "DPI-"};
constexpr std::string_view writeback = "Writeback-";

// "card0-DP-1" -> "DP-1"; empty for what is no connector.
std::string connectorName(const std::string& entry) {
    if (!entry.starts_with("card")) return {};
    const auto dash = entry.find('-');
    return dash == std::string::npos ? std::string() : entry.substr(dash + 1);
}

}  // namespace

bool Connector::isBuiltIn(std::string_view name) {
    return std::any_of(builtInTypes.begin(), builtInTypes.end(),
                       [name](std::string_view type) { return name.starts_with(type); });
}

std::vector<Connector> Connector::list(const Sysfs& sysfs) {
    std::vector<Connector> connectors;
    for (const std::string& entry : sysfs.names(drm)) {
        Connector connector;
        connector.name = connectorName(entry);
        if (connector.name.empty() || connector.name.starts_with(writeback)) continue;
        connector.folder = std::string(drm) + "/" + entry;
        // Its device is the card, whose device is the graphics device.
        connector.device = sysfs.realPath(connector.folder + "/device/device").value_or("");
        connector.isConnected = sysfs.text(connector.folder + "/status") == "connected";
        connector.isEnabled = sysfs.text(connector.folder + "/enabled") == "enabled";
        if (connector.isConnected) connector.edid = sysfs.bytes(connector.folder + "/edid");
        connectors.push_back(std::move(connector));
    }
    return connectors;
}

}  // namespace vantrel::linux
