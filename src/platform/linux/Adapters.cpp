#include "platform/linux/Adapters.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>

#include "platform/linux/EDID.h"

namespace vantrel::linux {
namespace {

constexpr const char* busFolder = "/bus/i2c/devices/";
constexpr std::string_view prefix = "i2c-";
// VESA E-DDC 1.3: where a monitor keeps its EDID, and what is written to begin at its start.
constexpr std::uint8_t edidAddress = 0x50;
constexpr std::array<std::uint8_t, 1> edidStart{0};

// "i2c-4" -> 4
std::optional<I2CDevices::Bus> busOf(std::string_view name) {
    if (!name.starts_with(prefix)) return std::nullopt;
    name.remove_prefix(prefix.size());
    I2CDevices::Bus bus = 0;
    const auto [stop, error] = std::from_chars(name.data(), name.data() + name.size(), bus);
    if (error != std::errc() || stop != name.data() + name.size()) return std::nullopt;
    return bus;
}

std::optional<Adapter> adapterAt(const Sysfs& sysfs, const std::string& path) {
    auto device = sysfs.realPath(path);
    if (!device) return std::nullopt;
    const auto bus = busOf(std::string_view(*device).substr(device->rfind('/') + 1));
    if (!bus) return std::nullopt;
    return Adapter{*bus, *std::move(device)};
}

std::vector<std::uint8_t> edidBehind(I2CDevices& devices, I2CDevices::Bus bus) {
    std::vector<std::uint8_t> bytes(EDID::blockSize);
    if (devices.write(bus, edidAddress, edidStart) != 0) return {};
    if (devices.read(bus, edidAddress, bytes) != 0) return {};
    return bytes;
}

}  // namespace

std::vector<Adapter> Adapters::ofDevice(const Sysfs& sysfs, const std::string& device) {
    std::vector<Adapter> adapters;
    if (device.empty()) return adapters;
    for (const std::string& name : sysfs.names(busFolder)) {
        auto adapter = adapterAt(sysfs, busFolder + name);
        if (adapter && adapter->device.starts_with(device + "/")) adapters.push_back(*std::move(adapter));
    }
    return adapters;
}

std::optional<Adapter> Adapters::ofConnector(const Sysfs& sysfs, const Connector& connector) {
    for (const std::string& name : sysfs.names(connector.folder)) {
        if (!busOf(name)) continue;
        if (auto adapter = adapterAt(sysfs, connector.folder + "/" + name)) return adapter;
    }
    return adapterAt(sysfs, connector.folder + "/ddc");
}

std::optional<Adapter> Adapters::withEDID(I2CDevices& devices, const std::vector<Adapter>& adapters,
                                          const std::vector<std::uint8_t>& edid) {
    if (edid.size() < EDID::blockSize) return std::nullopt;
    const auto found = std::find_if(adapters.begin(), adapters.end(), [&](const Adapter& adapter) {
        const auto behind = edidBehind(devices, adapter.bus);
        return std::equal(behind.begin(), behind.end(), edid.begin(),
                          edid.begin() + static_cast<std::ptrdiff_t>(behind.size())) &&
               !behind.empty();
    });
    return found != adapters.end() ? std::optional(*found) : std::nullopt;
}

bool Adapters::isThere(const Sysfs& sysfs, const Adapter& adapter) {
    const auto now = adapterAt(sysfs, busFolder + std::string(prefix) + std::to_string(adapter.bus));
    return now == adapter;
}

}  // namespace vantrel::linux
