#include "platform/simulated/World.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "runtime/Fatal.h"

namespace vantrel::simulated {

using platform::DisplayID;
using platform::DisplayServices;
using runtime::MonotonicTime;

World::World(Desk desk, runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop)
    : desk_(std::move(desk)),
      scheduler_(scheduler),
      mainLoop_(mainLoop),
      tables_(desk_.displays),
      announcements_(mainLoop) {
    const Random random(desk_.seed);
    for (const DisplayPlan& plan : desk_.displays) {
        const auto [place, isNew] = states_.try_emplace(plan.id);
        runtime::require(isNew, "two displays of a desk have the same id");
        State& state = place->second;
        state.isPluggedIn = plan.isConnected;
        state.output = plan.isOn ? Output::on : Output::off;
        state.brightness = plan.brightness.value_or(0);
        if (plan.monitor) {
            state.monitor =
                std::make_unique<SimulatedMonitor>(*plan.monitor, random.fork(plan.id), scheduler);
            state.monitor->onPulse([this, id = plan.id, poster = mainLoop.poster()](const Pulse& pulse) {
                poster.post(announcements_.whileItLasts([this, id, pulse] { expect(id, pulse); }));
            });
        }
        state.wasOnline = isOnline(plan.id);
    }
}

const DisplayPlan* World::plan(DisplayID display) const {
    const auto has = [display](const DisplayPlan& plan) { return plan.id == display; };
    const auto found = std::find_if(desk_.displays.begin(), desk_.displays.end(), has);
    return found == desk_.displays.end() ? nullptr : &*found;
}

SimulatedMonitor* World::monitor(DisplayID display) const {
    const auto found = states_.find(display);
    return found == states_.end() ? nullptr : found->second.monitor.get();
}

std::vector<DisplayID> World::online() const {
    const std::lock_guard lock(mutex_);
    const MonotonicTime now = scheduler_.now();
    std::vector<DisplayID> displays;
    for (const DisplayPlan& plan : desk_.displays) {
        if (isOnline(plan, now)) displays.push_back(plan.id);
    }
    return displays;
}

bool World::isOnline(DisplayID display) const {
    const std::lock_guard lock(mutex_);
    const DisplayPlan* found = plan(display);
    return found != nullptr && isOnline(*found, scheduler_.now());
}

bool World::isPluggedIn(DisplayID display) const {
    const std::lock_guard lock(mutex_);
    const auto found = states_.find(display);
    return found != states_.end() && found->second.isPluggedIn;
}

bool World::isConnected(DisplayID display) const {
    const std::lock_guard lock(mutex_);
    const auto found = states_.find(display);
    return found != states_.end() && isConnected(found->second, scheduler_.now());
}

std::optional<float> World::brightness(DisplayID display) const {
    if (!isOnline(display) || !plan(display)->brightness) return std::nullopt;
    const std::lock_guard lock(mutex_);
    return states_.at(display).brightness;
}

bool World::setBrightness(DisplayID display, float level) {
    if (!brightness(display) || std::isnan(level)) return false;
    const std::lock_guard lock(mutex_);
    states_.at(display).brightness = std::clamp(level, 0.0F, 1.0F);
    return true;
}

void World::plug(DisplayID display) {
    State& changed = state(display);
    {
        const std::lock_guard lock(mutex_);
        if (std::exchange(changed.isPluggedIn, true)) return;
        changed.output = Output::on;
    }
    reconfigured();
    announceIfChanged(display);
}

void World::unplug(DisplayID display) {
    State& changed = state(display);
    {
        const std::lock_guard lock(mutex_);
        if (!std::exchange(changed.isPluggedIn, false)) return;
    }
    reconfigured();
    announceIfChanged(display);
}

void World::setOutput(DisplayID display, Output output) {
    State& changed = state(display);
    {
        const std::lock_guard lock(mutex_);
        if (std::exchange(changed.output, output) == output) return;
    }
    reconfigured();
    announceIfChanged(display);
}

void World::openLid() { setLid(true); }

void World::closeLid() { setLid(false); }

void World::setLid(bool isOpen) {
    {
        const std::lock_guard lock(mutex_);
        if (std::exchange(isLidOpen_, isOpen) == isOpen) return;
    }
    reconfigured();
    for (const DisplayPlan& plan : desk_.displays) announceIfChanged(plan.id);
}

void World::reconfigure(DisplayID display, std::uint32_t flags) {
    state(display);
    reconfigured();
    announcements_.reconfiguration(display, flags);
}

void World::sleep() { isAsleep_ = true; }

void World::wake() {
    if (!isAsleep_.exchange(false)) return;
    for (auto& [display, state] : states_) {
        if (state.monitor) state.monitor->wake();
    }
    announcements_.wake();
}

void World::reconfigured() {
    ++reconfigurations_;
    tables_.reset();
}

void World::expect(DisplayID display, const Pulse& pulse) {
    const MonotonicTime now = scheduler_.now();
    const auto tell = [this, display] {
        if (state(display).wasOnline != isOnline(display)) reconfigured();
        announceIfChanged(display);
    };
    for (const MonotonicTime edge : {pulse.from, pulse.to}) {
        mainLoop_.after(std::max(edge - now, runtime::MonotonicClock::duration::zero()),
                        announcements_.whileItLasts(tell));
    }
}

void World::announceIfChanged(DisplayID display) {
    State& changed = state(display);
    const bool isNowOnline = isOnline(display);
    if (std::exchange(changed.wasOnline, isNowOnline) == isNowOnline) return;
    announcements_.reconfiguration(display,
                                   isNowOnline ? DisplayServices::addFlag : DisplayServices::removeFlag);
}

World::State& World::state(DisplayID display) {
    const auto found = states_.find(display);
    runtime::require(found != states_.end(), "something happened to a display that the desk does not have");
    return found->second;
}

bool World::isConnected(const State& state, MonotonicTime now) const {
    return state.isPluggedIn && (!state.monitor || state.monitor->isOnBus(now));
}

bool World::isOnline(const DisplayPlan& plan, MonotonicTime now) const {
    const auto found = states_.find(plan.id);
    // Not yet, while the world is being made.
    if (found == states_.end()) return false;
    const bool isOpen = isLidOpen_ || !plan.isBuiltIn;
    return isOpen && found->second.output == Output::on && isConnected(found->second, now);
}

}  // namespace vantrel::simulated
