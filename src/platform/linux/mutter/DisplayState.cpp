#include "platform/linux/mutter/DisplayState.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "platform/linux/mutter/MessageReader.h"

namespace vantrel::mutter {
namespace {

// A quarter turn, or three, perhaps of a mirrored picture.
bool isOnItsSide(std::uint32_t transform) { return (transform & 1U) != 0; }

void setSize(LogicalMonitor& part, const Monitor::Mode& mode, DisplayState::LayoutMode layoutMode) {
    const double divisor = layoutMode == DisplayState::LayoutMode::logical ? part.scale : 1;
    part.width = static_cast<int>(std::lround(mode.width / divisor));
    part.height = static_cast<int>(std::lround(mode.height / divisor));
    if (isOnItsSide(part.transform)) std::swap(part.width, part.height);
}

Monitor::Mode readMode(MessageReader& reader) {
    Monitor::Mode mode;
    reader.structure("siiddada{sv}", [&] {
        mode.id = reader.text();
        mode.width = reader.integer();
        mode.height = reader.integer();
        reader.real();
        mode.preferredScale = reader.real();
        reader.skip("ad");
        reader.properties([&](std::string_view name, std::string_view type) {
            if (type != "b") return false;
            if (name == "is-preferred") return mode.isPreferred = reader.truth(), true;
            if (name == "is-current") return mode.isCurrent = reader.truth(), true;
            return false;
        });
    });
    return mode;
}

Monitor readMonitor(MessageReader& reader) {
    Monitor monitor;
    reader.structure("(ssss)a(siiddada{sv})a{sv}", [&] {
        reader.structure("ssss", [&] {
            monitor.connector = reader.text();
            const std::string vendor = reader.text();
            monitor.name = vendor + " " + reader.text();
            reader.text();
        });
        reader.array("(siiddada{sv})", [&] { monitor.modes.push_back(readMode(reader)); });
        reader.properties([&](std::string_view name, std::string_view type) {
            if (name == "display-name" && type == "s") return monitor.name = reader.text(), true;
            if (name == "is-underscanning" && type == "b")
                return monitor.isUnderscanning = reader.truth(), true;
            if ((name == "color-mode" || name == "rgb-range") && type == "u") {
                return monitor.numbers[std::string(name)] = reader.number(), true;
            }
            return false;
        });
    });
    return monitor;
}

LogicalMonitor readPart(MessageReader& reader, const DisplayState& state) {
    LogicalMonitor part;
    reader.structure("iiduba(ssss)a{sv}", [&] {
        part.x = reader.integer();
        part.y = reader.integer();
        part.scale = reader.real();
        part.transform = reader.number();
        part.isPrimary = reader.truth();
        reader.array("(ssss)", [&] {
            reader.structure("ssss", [&] {
                const std::string connector = reader.text();
                reader.skip("sss");
                const Monitor* const monitor = state.monitor(connector);
                if (monitor == nullptr) return;
                for (const Monitor::Mode& mode : monitor->modes) {
                    if (mode.isCurrent) part.modes.emplace(connector, mode.id);
                }
            });
        });
        reader.skip("a{sv}");
    });
    return part;
}

}  // namespace

std::optional<DisplayState> DisplayState::read(const linux::Bus::Message& answer) {
    MessageReader reader(answer.get());
    DisplayState state;
    std::vector<LogicalMonitor> parts;
    state.serial = reader.number();
    reader.array("((ssss)a(siiddada{sv})a{sv})", [&] { state.monitors.push_back(readMonitor(reader)); });
    reader.array("(iiduba(ssss)a{sv})", [&] { parts.push_back(readPart(reader, state)); });
    reader.properties([&](std::string_view name, std::string_view type) {
        if (name == "layout-mode" && type == "u") {
            return state.layoutMode = static_cast<LayoutMode>(reader.number()), true;
        }
        if (type != "b") return false;
        if (name == "supports-changing-layout-mode") return state.canChangeLayoutMode = reader.truth(), true;
        if (name == "global-scale-required") return state.needsOneScale = reader.truth(), true;
        return false;
    });
    if (!reader.isGood()) return std::nullopt;
    std::erase_if(parts, [](const LogicalMonitor& part) { return part.modes.empty() || part.scale <= 0; });
    for (LogicalMonitor& part : parts) {
        const auto& [connector, mode] = *part.modes.begin();
        setSize(part, *state.monitor(connector)->mode(mode), state.layoutMode);
    }
    state.layout = Layout(std::move(parts));
    return state;
}

const Monitor* DisplayState::monitor(const std::string& connector) const {
    const auto found = std::find_if(monitors.begin(), monitors.end(),
                                    [&](const Monitor& monitor) { return monitor.connector == connector; });
    return found != monitors.end() ? &*found : nullptr;
}

LogicalMonitor DisplayState::part(const Monitor& monitor, const Monitor::Mode& mode) const {
    LogicalMonitor part;
    const bool isBound = needsOneScale && !layout.parts().empty();
    part.scale = isBound ? layout.parts().front().scale : std::max(mode.preferredScale, 1.0);
    part.modes.emplace(monitor.connector, mode.id);
    setSize(part, mode, layoutMode);
    return part;
}

}  // namespace vantrel::mutter
