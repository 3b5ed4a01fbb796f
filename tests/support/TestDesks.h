// Desks of the tests' own: a panel and healthy monitors, to be spoiled as needed.
// Their computer is on input 0x0F, and 0x11 and 0x12 are there too.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/simulated/DefaultRegistry.h"
#include "platform/simulated/Desk.h"

namespace vantrel::test {

inline constexpr std::uint16_t computersInput = 0x0F;
inline constexpr std::uint16_t otherInput = 0x11;
inline constexpr std::uint16_t thirdInput = 0x12;

inline simulated::DisplayPlan panelPlan() {
    simulated::DisplayPlan plan;
    plan.id = 1;
    plan.isBuiltIn = true;
    plan.vendor = 1552;
    plan.product = 7;
    plan.name = "Panel";
    plan.brightness = 0.5F;
    return plan;
}

// Its key is "1000-<20 + id>-<100 + id>".
inline simulated::DisplayPlan monitorPlan(platform::DisplayID id, std::string name) {
    simulated::MonitorPlan monitor;
    monitor.capabilities = "(prot(monitor)type(lcd)vcp(10 12 60(0F 11 12) 62)mccs_ver(2.1))";
    monitor.features[0x10] = {.type = 0, .current = 50, .maximum = 100};
    monitor.features[0x12] = {.type = 0, .current = 70, .maximum = 100};
    monitor.features[0x62] = {.type = 0, .current = 20, .maximum = 100};
    monitor.inputs = simulated::InputPlan{.computer = computersInput,
                                          .shown = computersInput,
                                          .available = {computersInput, otherInput, thirdInput}};
    simulated::DisplayPlan plan;
    plan.id = id;
    plan.vendor = 1000;
    plan.product = 20 + id;
    plan.serial = 100 + id;
    plan.name = std::move(name);
    plan.monitor = std::move(monitor);
    return plan;
}

inline simulated::Desk deskOf(std::vector<simulated::DisplayPlan> displays) {
    simulated::Desk desk;
    desk.title = "Test desk";
    desk.registry = simulated::defaultRegistry(displays);
    desk.displays = std::move(displays);
    return desk;
}

// The panel, "Alder" (2) and "Birch" (3).
inline simulated::Desk usualDesk() {
    return deskOf({panelPlan(), monitorPlan(2, "Alder"), monitorPlan(3, "Birch")});
}

}  // namespace vantrel::test
