// What happens to the desk, and who is told of it.
#include <algorithm>
#include <utility>

#include "platform/simulated/World.h"

namespace vantrel::simulated {

using platform::DisplayID;
using platform::DisplayServices;

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
    announce(display, flags);
}

void World::sleep() { isAsleep_ = true; }

void World::wake() {
    if (!isAsleep_.exchange(false)) return;
    for (auto& [display, state] : states_) {
        if (state.monitor) state.monitor->wake();
    }
    mainLoop_.post([this, world = std::weak_ptr(existence_)] {
        if (world.expired()) return;
        for (std::size_t index = 0; index < wakeCallbacks_.size(); ++index) {
            const auto callback = wakeCallbacks_[index];
            callback();
        }
    });
}

void World::onReconfiguration(DisplayServices::ReconfigurationCallback callback) {
    reconfigurationCallbacks_.push_back(std::move(callback));
}

void World::onWake(std::function<void()> callback) { wakeCallbacks_.push_back(std::move(callback)); }

void World::reconfigured() {
    ++reconfigurations_;
    tables_.reset();
}

void World::expect(DisplayID display, const Pulse& pulse) {
    const runtime::MonotonicTime now = scheduler_.now();
    for (const runtime::MonotonicTime edge : {pulse.from, pulse.to}) {
        mainLoop_.after(std::max(edge - now, runtime::MonotonicClock::duration::zero()),
                        [this, display, world = std::weak_ptr(existence_)] {
                            if (world.expired()) return;
                            if (state(display).wasOnline != isOnline(display)) reconfigured();
                            announceIfChanged(display);
                        });
    }
}

void World::announceIfChanged(DisplayID display) {
    State& changed = state(display);
    const bool isNowOnline = isOnline(display);
    if (std::exchange(changed.wasOnline, isNowOnline) == isNowOnline) return;
    announce(display, isNowOnline ? DisplayServices::addFlag : DisplayServices::removeFlag);
}

void World::announce(DisplayID display, std::uint32_t flags) {
    for (const std::uint32_t phase : {DisplayServices::beginConfigurationFlag, flags}) {
        mainLoop_.post([this, display, phase, world = std::weak_ptr(existence_)] {
            if (world.expired()) return;
            // A callback may register another one.
            for (std::size_t index = 0; index < reconfigurationCallbacks_.size(); ++index) {
                const auto callback = reconfigurationCallbacks_[index];
                callback(display, phase);
            }
        });
    }
}

}  // namespace vantrel::simulated
