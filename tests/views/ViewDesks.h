// Desks on which there is more for a view to show.
#pragma once

#include <utility>

#include "support/TestDesks.h"

namespace vantrel::test {

// The panel and "Alder" (2), made as told.
inline simulated::Desk deskWith(simulated::DisplayPlan alder) {
    return deskOf({panelPlan(), std::move(alder)});
}

inline simulated::DisplayPlan alderThatLists(const std::string& codes) {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->capabilities = "(prot(monitor)type(lcd)vcp(" + codes + ")mccs_ver(2.1))";
    return plan;
}

// Alder with a control of each kind beside the usual ones: mute, an action, a
// color preset, a sharpness of 0 to 10, hours to read, and one of its maker's own.
inline simulated::DisplayPlan richAlder() {
    simulated::DisplayPlan plan = alderThatLists("10 12 60(0F 11 12) 62 8D 04 14(1 2 5) 87 C0 E1(0 1)");
    auto& features = plan.monitor->features;
    features[0x8D] = {.type = 0, .current = 2, .maximum = 2};
    features[0x14] = {.type = 0, .current = 5, .maximum = 13};
    features[0x87] = {.type = 0, .current = 7, .maximum = 10};
    features[0xC0] = {.type = 0, .current = 500, .maximum = 65535};
    features[0xE1] = {.type = 0, .current = 1, .maximum = 1};
    return plan;
}

// Answers nothing, though its connection is there.
inline simulated::DisplayPlan deadAlder() {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor->personality.dead = true;
    return plan;
}

// Its connection passes no DDC/CI.
inline simulated::DisplayPlan deafAlder() {
    simulated::DisplayPlan plan = monitorPlan(2, "Alder");
    plan.monitor.reset();
    return plan;
}

}  // namespace vantrel::test
