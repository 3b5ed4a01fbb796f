// A simulated computer in virtual time with a built-in panel (1) and two monitors
// (2 and 3), both with a framebuffer and a proxy in the registry.
#pragma once

#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "platform/AVService.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"
#include "simulated/MonitorBench.h"

namespace vantrel::simulated {

inline DisplayPlan externalDisplay(platform::DisplayID id, const std::string& name) {
    DisplayPlan plan;
    plan.id = id;
    plan.vendor = 0x10AC;
    plan.product = 0x4000 + id;
    plan.serial = 7000 + id;
    plan.name = name;
    plan.monitor = ordinaryMonitor();
    return plan;
}

inline void addRegistryEntries(Desk& desk, platform::DisplayID display, const std::string& location) {
    using Kind = RegistryEntryPlan::Kind;
    desk.registry.push_back({Kind::framebuffer, "AppleCLCD2", display, {}});
    desk.registry.push_back({Kind::proxy, "DCPAVServiceProxy", display, {{"Location", location}}});
}

inline Desk ordinaryDesk() {
    Desk desk;
    DisplayPlan panel;
    panel.id = 1;
    panel.isBuiltIn = true;
    panel.vendor = 0x610;
    panel.product = 0xA050;
    panel.name = "Built-in Display";
    panel.brightness = 0.5F;
    desk.displays = {panel, externalDisplay(2, "Left"), externalDisplay(3, "Right")};
    desk.registry.push_back({RegistryEntryPlan::Kind::other, "AppleARMPE", 0, {}});
    addRegistryEntries(desk, 1, "Embedded");
    addRegistryEntries(desk, 2, "External");
    addRegistryEntries(desk, 3, "External");
    return desk;
}

class SilentSink : public platform::LogSink {
  public:
    void write(std::string_view, std::string_view, platform::LogLevel, std::string_view) override {}
};

class DeskBench {
  public:
    using Call = std::pair<platform::DisplayID, std::uint32_t>;
    using Calls = std::vector<Call>;

    explicit DeskBench(Desk desk = ordinaryDesk()) : simulated(std::move(desk), time, loop) {
        platform.displays.onReconfiguration(
            [this](platform::DisplayID display, std::uint32_t flags) { calls.emplace_back(display, flags); });
    }

    World& world() { return simulated.world(); }
    std::vector<platform::DisplayID> online() { return platform.displays.onlineDisplays(); }

    // The registry entry that the walk finds at this place, counting from 0.
    std::unique_ptr<platform::RegistryEntry> entry(std::size_t place) {
        auto walk = platform.registry.iterateServicePlane();
        auto found = walk->next();
        while (found && place-- > 0) found = walk->next();
        return found;
    }

    // A handle of the monitor of display 2 on the full desk.
    platform::AVService service() {
        return {platform.registry, platform.functions.avCreate()(nullptr, entry(4)->object())};
    }

    bool setOutput(platform::DisplayID display, platform::DisplayToggler::Output output) {
        return platform::DisplayToggler::setEnabled(platform.displays, platform.functions, display, output);
    }

    std::int32_t write(const platform::AVService& service, std::string_view frame) {
        const Bytes written = bytes(frame);
        return platform.functions.avWrite()(service.get(), 0x37, 0x51, written.data(),
                                            static_cast<std::uint32_t>(written.size()));
    }

    VirtualTime time;
    runtime::MainLoop loop{time};
    SimulatedPlatform simulated;
    SilentSink sink;
    platform::Platform platform = simulated.platform(sink);
    // What the reconfiguration callback heard.
    Calls calls;
};

// As a reconfiguration callback hears them.
inline constexpr std::uint32_t begins = 1;
inline constexpr std::uint32_t added = 16;
inline constexpr std::uint32_t removed = 32;

}  // namespace vantrel::simulated
