#include "app/StoryWorld.h"

#include "runtime/Fatal.h"

namespace vantrel::app {

using simulated::SimulatedMonitor;

void StoryWorld::perform(MonitorAction action, const StoryStep& step) {
    SimulatedMonitor& monitor = simulated_.monitor(step.display);
    switch (action) {
        case MonitorAction::pressInputButton:
            return monitor.pressInputButton(step.input.value());
        case MonitorAction::adjust:
            return monitor.adjust(step.code, step.value);
        case MonitorAction::switchOff:
            return monitor.setPower(SimulatedMonitor::Power::off);
        case MonitorAction::switchOn:
            return monitor.setPower(SimulatedMonitor::Power::on);
        case MonitorAction::becomeHealthy:
            return monitor.becomeHealthy();
    }
    runtime::fatal("a monitor's action of no kind");
}

void StoryWorld::perform(WorldAction action, const StoryStep& step) {
    simulated::World& world = simulated_.world();
    switch (action) {
        case WorldAction::plug:
            return world.plug(step.display);
        case WorldAction::unplug:
            return world.unplug(step.display);
        case WorldAction::sleep:
            return world.sleep();
        case WorldAction::wake:
            return world.wake();
        case WorldAction::openLid:
            return world.openLid();
        case WorldAction::closeLid:
            return world.closeLid();
        case WorldAction::reconfigure:
            return world.reconfigure(step.display, step.flags);
        case WorldAction::refuse:
            return simulated_.refuse(step.refusal);
    }
    runtime::fatal("a world's action of no kind");
}

}  // namespace vantrel::app
