#include "platform/linux/mutter/DisplayConfig.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>

#include "platform/linux/mutter/MessageReader.h"

namespace vantrel::mutter {
namespace {

const linux::Bus::Address service{"org.gnome.Mutter.DisplayConfig", "/org/gnome/Mutter/DisplayConfig",
                                  "org.gnome.Mutter.DisplayConfig"};
const linux::Bus::Address daemon{"org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus"};

// Verify, temporary or persistent: a persistent one would ask the user whether to keep it.
constexpr std::uint32_t temporary = 1;

constexpr float largestSample = std::numeric_limits<std::uint16_t>::max();

std::vector<float> read(const std::vector<std::uint16_t>& words) {
    std::vector<float> samples;
    samples.reserve(words.size());
    for (const std::uint16_t word : words) samples.push_back(static_cast<float>(word) / largestSample);
    return samples;
}

void append(sd_bus_message* message, const std::vector<float>& samples) {
    std::vector<std::uint16_t> words;
    words.reserve(samples.size());
    for (const float sample : samples) {
        const float inside = sample > 0 ? std::min(sample, 1.0F) : 0.0F;
        words.push_back(static_cast<std::uint16_t>(std::lround(inside * largestSample)));
    }
    sd_bus_message_append_array(message, SD_BUS_TYPE_UINT16, words.data(), words.size() * sizeof words[0]);
}

// What isn't said of a monitor goes back to what Mutter would choose.
void appendProperties(sd_bus_message* message, const Monitor& monitor) {
    sd_bus_message_open_container(message, SD_BUS_TYPE_ARRAY, "{sv}");
    if (const auto isUnderscanning = monitor.isUnderscanning) {
        sd_bus_message_append(message, "{sv}", "underscanning", "b", *isUnderscanning ? 1 : 0);
    }
    for (const auto& [name, number] : monitor.numbers) {
        sd_bus_message_append(message, "{sv}", name.c_str(), "u", number);
    }
    sd_bus_message_close_container(message);
}

void appendPart(sd_bus_message* message, const LogicalMonitor& part, const DisplayState& state) {
    sd_bus_message_open_container(message, SD_BUS_TYPE_STRUCT, "iiduba(ssa{sv})");
    sd_bus_message_append(message, "iidub", part.x, part.y, part.scale, part.transform,
                          part.isPrimary ? 1 : 0);
    sd_bus_message_open_container(message, SD_BUS_TYPE_ARRAY, "(ssa{sv})");
    for (const auto& [connector, mode] : part.modes) {
        sd_bus_message_open_container(message, SD_BUS_TYPE_STRUCT, "ssa{sv}");
        sd_bus_message_append(message, "ss", connector.c_str(), mode.c_str());
        const Monitor* const monitor = state.monitor(connector);
        appendProperties(message, monitor != nullptr ? *monitor : Monitor());
        sd_bus_message_close_container(message);
    }
    sd_bus_message_close_container(message);
    sd_bus_message_close_container(message);
}

}  // namespace

bool DisplayConfig::isThere() {
    const auto call = bus_.makeCall(daemon, "NameHasOwner");
    if (call == nullptr) return false;
    sd_bus_message_append(call.get(), "s", service.service.c_str());
    const auto answer = bus_.call(call);
    return MessageReader(answer.get()).truth();
}

std::optional<DisplayState> DisplayConfig::state() {
    return DisplayState::read(bus_.call(bus_.makeCall(service, "GetCurrentState")));
}

DisplayConfig::Drivers DisplayConfig::drivers() {
    const auto answer = bus_.call(bus_.makeCall(service, "GetResources"));
    MessageReader reader(answer.get());
    Drivers drivers;
    reader.number();
    reader.skip("a(uxiiiiiuaua{sv})");
    reader.array("(uxiausauaua{sv})", [&] {
        reader.structure("uxiausauaua{sv}", [&] {
            reader.skip("ux");
            Driver driver;
            const std::int32_t crtc = reader.integer();
            if (crtc >= 0) driver.crtc = static_cast<std::uint32_t>(crtc);
            reader.skip("au");
            const std::string connector = reader.text();
            reader.skip("auau");
            reader.properties([&](std::string_view name, std::string_view type) {
                if (name != "edid" || type != "ay") return false;
                driver.edid = reader.bytes();
                return true;
            });
            drivers[connector] = std::move(driver);
        });
    });
    return reader.isGood() ? drivers : Drivers();
}

bool DisplayConfig::isApplyAllowed() {
    const auto value = bus_.property(service, "ApplyMonitorsConfigAllowed", "b");
    // Older ones don't know the question.
    if (value == nullptr) return true;
    return MessageReader(value.get()).truth();
}

bool DisplayConfig::apply(const DisplayState& before, const Layout& layout) {
    const auto call = bus_.makeCall(service, "ApplyMonitorsConfig");
    if (call == nullptr) return false;
    sd_bus_message_append(call.get(), "uu", before.serial, temporary);
    sd_bus_message_open_container(call.get(), SD_BUS_TYPE_ARRAY, "(iiduba(ssa{sv}))");
    for (const LogicalMonitor& part : layout.parts()) appendPart(call.get(), part, before);
    sd_bus_message_close_container(call.get());
    sd_bus_message_open_container(call.get(), SD_BUS_TYPE_ARRAY, "{sv}");
    if (before.canChangeLayoutMode) {
        sd_bus_message_append(call.get(), "{sv}", "layout-mode", "u",
                              static_cast<std::uint32_t>(before.layoutMode));
    }
    sd_bus_message_close_container(call.get());
    return bus_.call(call) != nullptr;
}

std::optional<platform::TransferTable> DisplayConfig::table(std::uint32_t serial, std::uint32_t crtc) {
    const auto call = bus_.makeCall(service, "GetCrtcGamma");
    if (call == nullptr) return std::nullopt;
    sd_bus_message_append(call.get(), "uu", serial, crtc);
    const auto answer = bus_.call(call);
    MessageReader reader(answer.get());
    platform::TransferTable table;
    table.red = read(reader.words());
    table.green = read(reader.words());
    table.blue = read(reader.words());
    const bool isEven = table.red.size() == table.green.size() && table.red.size() == table.blue.size();
    if (!reader.isGood() || !isEven || table.red.empty()) return std::nullopt;
    return table;
}

bool DisplayConfig::setTable(std::uint32_t serial, std::uint32_t crtc, const platform::TransferTable& table) {
    const auto call = bus_.makeCall(service, "SetCrtcGamma");
    if (call == nullptr) return false;
    sd_bus_message_append(call.get(), "uu", serial, crtc);
    append(call.get(), table.red);
    append(call.get(), table.green);
    append(call.get(), table.blue);
    return bus_.call(call) != nullptr;
}

void DisplayConfig::onChange(std::function<void()> changed) {
    bus_.onSignal(service, "MonitorsChanged", [changed](sd_bus_message*) { changed(); });
    bus_.onSignal(daemon, "NameOwnerChanged", [changed](sd_bus_message* message) {
        if (MessageReader(message).text() == service.service) changed();
    });
}

}  // namespace vantrel::mutter
