// How a storm ends: everybody is well again, and everything has to fall into place.
#include <algorithm>
#include <chrono>

#include "mccs/MCCS.h"
#include "model/VCPCodes.h"
#include "storms/Storm.h"

namespace vantrel::storms {

using namespace std::chrono_literals;
using LoadState = model::ExternalDisplay::LoadState;
using simulated::SimulatedMonitor;
using Output = simulated::World::Output;

namespace {

runtime::Task<> loadFromScratch(std::shared_ptr<model::ExternalDisplay> display) {
    co_await display->load(model::ExternalDisplay::Capabilities::fetched);
}

}  // namespace

void Storm::healEverything() {
    nextStep("everybody becomes healthy");
    simulated::World& world = simulated_.world();
    simulated_.refuse(simulated::Refusal::nothing);
    if (world.isAsleep()) world.wake();
    world.openLid();
    for (const auto& plan : desk_.desk.displays) {
        if (SimulatedMonitor* monitor = world.monitor(plan.id)) {
            monitor->becomeHealthy();
            monitor->setPower(SimulatedMonitor::Power::on);
        }
        if (!world.isPluggedIn(plan.id)) plug(plan.id);
    }
    verdict_.unless(runUntilIdle(), "tasks are left over");
    verdict_.unless(!invariants_.isAnySpinnerOn(), "a spinner is left on");
    verdict_.unless(!invariants_.isAnythingLoading(), "a model loads for ever");
}

void Storm::turnEverythingOn() {
    nextStep("every output on");
    for (const auto& entry : manager_->disabled()) manager_->enableOutput(entry);
    verdict_.unless(runUntilIdle(), "tasks are left over");
    // An identifier that no display has any more can't be turned on, only forgotten.
    const auto left = manager_->disabled();
    for (const auto& entry : left) {
        verdict_.unless(!identifiers_.worldID(entry.id) || functions_.configureEnabled() == nullptr,
                        entry.name + " can't be turned on again");
        counts_.note(Seen::entryNobodyCanTurnOn);
        manager_->forget(entry);
    }
    simulated::World& world = simulated_.world();
    for (const auto& plan : desk_.desk.displays) {
        if (world.isOnline(plan.id)) continue;
        // Forgetting a monitor does not turn it on: then only the cable does.
        counts_.note(Seen::darkAfterForget);
        world.unplug(plan.id);
        plug(plan.id);
    }
    runFor(2s);
    manager_->refresh();
    verdict_.unless(manager_->disabled().empty() && manager_->offline().empty(), "an output stays off");
    const auto externals = static_cast<std::size_t>(
        std::ranges::count_if(desk_.desk.displays, [](const auto& plan) { return !plan.isBuiltIn; }));
    verdict_.unless(manager_->externals().size() == externals, "a display is missing in the end");
}

void Storm::expectEverybodyReady() {
    nextStep("everybody loads");
    runUntilIdle();
    for (const Display& display : manager_->externals()) manager_->start(loadFromScratch(display));
    verdict_.unless(runUntilIdle(), "tasks are left over");
    if (!desk_.hasDDC) return;
    for (const Display& display : manager_->externals()) {
        if (desk_.isClean) verdict_.unless(display->hasWorker(), display->name() + " found no service");
        if (display->hasWorker() && !isSpoiled(display))
            verdict_.unless(display->loadState() == LoadState::ready,
                            display->name() + " is not ready in the end");
    }
}

// The monitor at the end of its line; nothing before the first transfer.
std::optional<Storm::DisplayID> Storm::monitorOf(const Display& display) {
    const auto worker = invariants_.workerOf(display);
    if (!display->hasWorker() || worker == Wire::noWorker) return std::nullopt;
    return wire_.worker(worker).monitor;
}

// Whether another model's worker talks to the same monitor: they spoil each
// other's reads, which nothing but a better cable or a restart can help.
bool Storm::isSpoiled(const Display& display) {
    const auto monitor = monitorOf(display);
    return monitor && wire_.isShared(*monitor);
}

// Sliders move while values are read again.
void Storm::expectValuesToArrive() {
    nextStep("values arrive");
    wire_.forgetTaken();
    for (int round = 0; round < 3; ++round) {
        // A copy: the list may change while time passes.
        const auto displays = manager_->externals();
        for (const Display& display : displays) {
            if (random_.chance(0.3)) manager_->loadAll();
            for (std::uint64_t moves = random_.uniform(1, 12); moves > 0; --moves) {
                if (const Feature feature = someFeature(display)) write(display, feature, someValue(feature));
                if (random_.chance(0.5)) loop_.runFor(random_.duration(0ms, 120ms));
            }
            const Feature input = display->feature(model::inputSource);
            if (input && random_.chance(0.3)) display->set(*input, someInput(display));
        }
    }
    verdict_.unless(runUntilIdle(), "tasks are left over");
    checkWhatWasSent();
    for (const auto& [monitor, values] : wire_.taken()) {
        for (const auto& [code, value] : values) {
            if (!takes(monitor, code, value)) continue;
            counts_.note(code == model::inputSource ? Seen::inputVerified : Seen::valueVerified);
            const auto held = code == model::inputSource ? simulated_.monitor(monitor).shownInput()
                                                         : simulated_.monitor(monitor).value(code);
            verdict_.unless(held == value, "monitor " + std::to_string(monitor) +
                                               " does not hold the last value written to code " +
                                               std::to_string(code));
        }
    }
}

// Whether a healthy monitor takes it.
bool Storm::takes(DisplayID monitor, std::uint8_t code, std::uint16_t value) {
    const auto& plan = *simulated_.world().plan(monitor)->monitor;
    if (code == model::inputSource && plan.inputs)
        return std::ranges::find(plan.inputs->available, value) != plan.inputs->available.end();
    const auto feature = plan.features.find(code);
    if (feature == plan.features.end() || feature->second.unsupported || feature->second.type != 0)
        return false;
    if (mccs::MCCS::info(code).kind == mccs::VCPInfo::Kind::action) return false;
    return feature->second.maximum == 0 || value <= feature->second.maximum;
}

// A healthy monitor that tells its inputs as they are is back at once.
void Storm::expectReturns() {
    nextStep("everybody returns");
    for (const Display& display : manager_->externals()) manager_->start(manager_->returnToMac(display));
    verdict_.unless(runUntilIdle(), "tasks are left over");
    verdict_.unless(!invariants_.isAnySpinnerOn(), "a spinner is left on");
    if (!desk_.isClean || !desk_.hasDDC) return;
    for (const Display& display : manager_->externals()) {
        const DisplayID monitor = identifiers_.worldID(display->id()).value();
        // A worker that went astray long ago stays there as long as it gets answers.
        if (monitorOf(display) != monitor || isSpoiled(display)) continue;
        const auto& plan = *simulated_.world().plan(monitor)->monitor;
        const auto mac = display->inputSettings().macInput();
        const auto inputs = display->inputs();
        const bool isKnown = mac && std::ranges::find(inputs, *mac) != inputs.end();
        if (!isKnown || !plan.inputs || !plan.personality.inputReadings.empty()) continue;
        if (std::ranges::find(plan.inputs->available, *mac) == plan.inputs->available.end()) continue;
        counts_.note(Seen::finalReturn);
        verdict_.unless(simulated_.monitor(monitor).shownInput() == mac,
                        display->name() + " is not back on the computer's input");
    }
}

void Storm::expectModelsToShowTheTruth() {
    nextStep("models show what the monitors hold");
    manager_->loadAll();
    verdict_.unless(runUntilIdle(), "tasks are left over");
    for (const Display& display : manager_->externals()) {
        if (!display->hasWorker() || !desk_.hasDDC || isSpoiled(display)) continue;
        const auto monitor = monitorOf(display);
        for (const std::uint8_t code : model::defaultCodes) {
            const Feature feature = display->feature(code);
            // Inputs may read as others than they are.
            if (!feature || !monitor || code == model::inputSource) continue;
            const auto held = simulated_.monitor(*monitor).value(code);
            verdict_.unless(
                !held || feature->current.get() == held,
                display->name() + " does not show what its monitor holds under code " + std::to_string(code));
        }
    }
}

}  // namespace vantrel::storms
