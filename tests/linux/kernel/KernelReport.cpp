#include "linux/kernel/KernelReport.h"

#include <nlohmann/json.hpp>
#include <set>

#include "text/Hex.h"

namespace vantrel::test {
namespace {

using nlohmann::json;

constexpr std::uint8_t inputCode = 0x60;

json valuesOf(const simulated::SimulatedMonitor& monitor, const simulated::MonitorPlan& plan) {
    std::set<std::uint8_t> codes{inputCode};
    for (const auto& [code, feature] : plan.features) codes.insert(code);
    json values = json::object();
    for (const std::uint8_t code : codes) {
        if (const auto value = monitor.value(code)) values["0x" + text::upperHex(code)] = *value;
    }
    return values;
}

json countersOf(EmulatedKernel& kernel, platform::DisplayID display) {
    const EmulatedNode::Counters node = kernel.nodeCounters(display);
    const EmulatedBus::Counters bus = kernel.bus(display).counters();
    json counters{{"opens", node.opens},   {"ioctls", node.ioctls},      {"reads", node.reads},
                  {"writes", node.writes}, {"transfers", bus.transfers}, {"failures", bus.failures}};
    if (const simulated::SimulatedMonitor* monitor = kernel.bus(display).findMonitor()) {
        const simulated::MonitorCounters seen = monitor->counters();
        counters["monitorWrites"] = seen.writes;
        counters["monitorReads"] = seen.reads;
        counters["getRequests"] = seen.getRequests;
        counters["setRequests"] = seen.setRequests;
        counters["capabilitiesRequests"] = seen.capabilitiesRequests;
        counters["ignored"] = seen.ignored;
    }
    return counters;
}

}  // namespace

std::string kernelReport(EmulatedKernel& kernel, const simulated::Desk& desk) {
    json displays = json::array();
    for (const simulated::DisplayPlan& plan : desk.displays) {
        json display{{"id", plan.id},
                     {"connector", kernel.connector(plan.id)},
                     {"node", kernel.node(plan.id)},
                     {"counters", countersOf(kernel, plan.id)}};
        if (plan.monitor) display["values"] = valuesOf(kernel.monitor(plan.id), *plan.monitor);
        displays.push_back(std::move(display));
    }
    return json{{"displays", displays}, {"strayWrites", kernel.strayWrites()}}.dump(2) + '\n';
}

}  // namespace vantrel::test
