// Monitors in few words, for tests that are about what a monitor says.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/simulated/Desk.h"

namespace vantrel::test {

// A monitor that lists these codes (the contents of its vcp section) and has
// none of them yet.
inline simulated::MonitorPlan monitorThatLists(const std::string& codes) {
    simulated::MonitorPlan plan;
    plan.capabilities = "(vcp(" + codes + "))";
    return plan;
}

inline void has(simulated::MonitorPlan& plan, std::uint8_t code, std::uint16_t current,
                std::uint16_t maximum) {
    plan.features[code] = {.current = current, .maximum = maximum};
}

inline void hasAll(simulated::MonitorPlan& plan, std::initializer_list<std::uint8_t> codes,
                   std::uint16_t current, std::uint16_t maximum) {
    for (const std::uint8_t code : codes) has(plan, code, current, maximum);
}

// Shows the first of them, where the computer is.
inline void hasInputs(simulated::MonitorPlan& plan, std::vector<std::uint16_t> inputs) {
    plan.inputs = simulated::InputPlan{
        .computer = inputs.front(), .shown = inputs.front(), .available = std::move(inputs)};
}

// Gives null messages when it is asked for these codes, until it becomes healthy.
inline void neverAnswers(simulated::MonitorPlan& plan, std::set<std::uint8_t> codes) {
    plan.personality.replyFaults.push_back(
        {.kind = simulated::ReplyFault::Kind::nullMessage, .when = {.every = 1}, .codes = std::move(codes)});
}

// Brightness 60, contrast 70, inputs 0F and 11 (shows 0F), volume 30.
inline simulated::MonitorPlan usualMonitor() {
    simulated::MonitorPlan plan = monitorThatLists("10 12 60(0F 11) 62");
    has(plan, 0x10, 60, 100);
    has(plan, 0x12, 70, 100);
    has(plan, 0x62, 30, 100);
    hasInputs(plan, {0x0F, 0x11});
    return plan;
}

// The same without a capabilities string.
inline simulated::MonitorPlan quietMonitor() {
    simulated::MonitorPlan plan = usualMonitor();
    plan.capabilities.reset();
    return plan;
}

}  // namespace vantrel::test
