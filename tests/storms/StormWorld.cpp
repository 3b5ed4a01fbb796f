// What happens to the desk of a storm.
#include <chrono>

#include "storms/Storm.h"

namespace vantrel::storms {

using namespace std::chrono_literals;
using simulated::Refusal;
using simulated::SimulatedMonitor;

void Storm::happen() {
    simulated::World& world = simulated_.world();
    const auto kind = random_.uniform(0, 99);
    if (world.isAsleep() && random_.chance(0.7)) {
        nextStep("wake");
        counts_.note(Seen::wake);
        return world.wake();
    }
    if (kind >= 90) {
        nextStep("sleep");
        counts_.note(Seen::sleep);
        if (wire_.isBusy()) counts_.note(Seen::sleptDuringATransfer);
        return world.sleep();
    }
    if (kind >= 84) {
        nextStep("lid");
        counts_.note(Seen::lid);
        return random_.chance(0.5) ? world.closeLid() : world.openLid();
    }
    if (kind >= 76) {
        nextStep("refusal");
        counts_.note(Seen::refusal);
        return simulated_.refuse(static_cast<Refusal>(random_.chance(0.5) ? 0 : random_.uniform(1, 3)));
    }
    const DisplayID display = someExternal();
    if (kind >= 70) {
        nextStep("reconfiguration of " + std::to_string(display));
        counts_.note(Seen::reconfiguration);
        return world.reconfigure(display, static_cast<std::uint32_t>(random_.uniform(0, 0x100)));
    }
    if (kind < 4) return exchange(display);
    if (kind < 45) return world.isPluggedIn(display) ? unplug(display) : plug(display);
    happenToMonitor(display);
}

Storm::DisplayID Storm::someExternal() {
    std::vector<DisplayID> externals;
    for (const auto& plan : desk_.desk.displays) {
        if (!plan.isBuiltIn) externals.push_back(plan.id);
    }
    return random_.chance(0.3) ? externals.front() : externals[random_.uniform(0, externals.size() - 1)];
}

void Storm::unplug(DisplayID display) {
    nextStep("unplug " + std::to_string(display));
    counts_.note(Seen::unplug);
    if (wire_.isBusy(display)) counts_.note(Seen::unpluggedDuringATransfer);
    simulated_.world().unplug(display);
    if (random_.chance(0.6)) return;
    counts_.note(Seen::unplugAMomentOnly);
    runFor(random_.duration(0ms, 3s));
    plug(display);
}

void Storm::plug(DisplayID display) {
    givePlace(display);
    nextStep("plug " + std::to_string(display) + " in as " +
             std::to_string(identifiers_.systemID(display).value_or(0)));
    simulated_.world().plug(display);
}

// Another monitor takes the display's place, identifier and all.
void Storm::exchange(DisplayID display) {
    simulated::World& world = simulated_.world();
    const DisplayID other = someExternal();
    const auto id = identifiers_.systemID(display);
    if (other == display || !id || !world.isPluggedIn(display)) return;
    if (random_.chance(0.5)) {
        // Best while the model is busy.
        manager_->loadAll();
        for (const Display& each : manager_->externals()) load(each);
        runFor(random_.duration(0ms, 1s));
    }
    nextStep("plug " + std::to_string(other) + " in as " + std::to_string(*id) + " instead of " +
             std::to_string(display));
    counts_.note(Seen::plugUnderAnothersIdentifier);
    world.unplug(other);
    world.unplug(display);
    invariants_.moved(*id);
    identifiers_.give(other, *id);
    world.plug(other);
}

// The identifier under which a display comes back.
void Storm::givePlace(DisplayID display) {
    const auto old = identifiers_.systemID(display);
    const auto give = [this, display](DisplayID id) {
        invariants_.moved(id);
        identifiers_.give(display, id);
    };
    if (random_.chance(0.15)) {
        for (const auto& other : desk_.desk.displays) {
            const auto id = identifiers_.systemID(other.id);
            if (other.isBuiltIn || other.id == display || !id || simulated_.world().isPluggedIn(other.id))
                continue;
            counts_.note(Seen::plugUnderAnothersIdentifier);
            return give(*id);
        }
    }
    if (!old || random_.chance(0.15)) {
        counts_.note(Seen::plugUnderNewIdentifier);
        return give(nextIdentifier_++);
    }
    counts_.note(Seen::plugBack);
}

void Storm::happenToMonitor(DisplayID display) {
    SimulatedMonitor* const monitor = simulated_.world().monitor(display);
    if (monitor == nullptr) return;
    const auto& plan = *simulated_.world().plan(display)->monitor;
    const auto kind = random_.uniform(0, 9);
    const std::string who = " of " + std::to_string(display);
    if (kind < 2) {
        nextStep("mains switch" + who);
        counts_.note(Seen::powerSwitch);
        monitor->setPower(random_.chance(0.4) ? SimulatedMonitor::Power::off : SimulatedMonitor::Power::on);
    } else if (kind < 6) {
        if (!plan.inputs) return;
        const auto& inputs = plan.inputs->available;
        nextStep("input button" + who);
        counts_.note(Seen::inputButton);
        monitor->pressInputButton(inputs[random_.uniform(0, inputs.size() - 1)]);
    } else if (kind < 9) {
        if (plan.features.empty()) return;
        auto feature = plan.features.begin();
        std::advance(feature, static_cast<int>(random_.uniform(0, plan.features.size() - 1)));
        nextStep("menu" + who);
        counts_.note(Seen::ownMenu);
        monitor->adjust(feature->first,
                        static_cast<std::uint16_t>(random_.uniform(0, feature->second.maximum)));
    } else {
        nextStep("healing" + who);
        counts_.note(Seen::earlyHealing);
        monitor->becomeHealthy();
    }
}

}  // namespace vantrel::storms
