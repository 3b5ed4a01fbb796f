// What happens to a simulated monitor besides its transfers, and what it shows.
#include <utility>

#include "platform/simulated/SimulatedMonitor.h"

namespace vantrel::simulated {

void SimulatedMonitor::setPower(Power power) {
    const std::lock_guard lock(mutex_);
    power_ = power;
    pending_.reset();
}

void SimulatedMonitor::wake() {
    const std::lock_guard lock(mutex_);
    deafUntil_ = clock_.now() + personality_.deafAfterWake;
    pending_.reset();
}

void SimulatedMonitor::pressInputButton(std::uint16_t input) {
    std::optional<Pulse> pulse;
    {
        const std::lock_guard lock(mutex_);
        if (inputs_) pulse = inputs_->press(input, clock_.now());
    }
    if (pulse && pulseListener_) pulseListener_(*pulse);
}

void SimulatedMonitor::adjust(std::uint8_t code, std::uint16_t value) {
    const std::lock_guard lock(mutex_);
    table_.adjust(code, value);
}

void SimulatedMonitor::becomeHealthy() {
    const std::lock_guard lock(mutex_);
    Personality healthy;
    healthy.inputReadings = personality_.inputReadings;
    personality_ = healthy;
    naks_ = Occasions();
    deafUntil_.reset();
    filter_ = WriteFilter(healthy);
    replier_ = VCPReplier(healthy);
    capabilities_.becomeHealthy();
    table_.stopReverting(clock_.now());
    if (inputs_) inputs_->becomeHealthy(clock_.now());
}

void SimulatedMonitor::onPulse(PulseListener listener) { pulseListener_ = std::move(listener); }

std::optional<std::uint16_t> SimulatedMonitor::value(std::uint8_t code) const {
    const std::lock_guard lock(mutex_);
    const auto found = reading(code, clock_.now());
    if (!found) return std::nullopt;
    return found->current;
}

std::optional<std::uint16_t> SimulatedMonitor::shownInput() const {
    const std::lock_guard lock(mutex_);
    if (!inputs_) return std::nullopt;
    return inputs_->shown(clock_.now());
}

bool SimulatedMonitor::isOnBus(runtime::MonotonicTime now) const {
    const std::lock_guard lock(mutex_);
    return !inputs_ || inputs_->isOnBus(now);
}

bool SimulatedMonitor::handlesGoStale() const {
    const std::lock_guard lock(mutex_);
    return personality_.staleAfterReconfiguration;
}

MonitorCounters SimulatedMonitor::counters() const {
    const std::lock_guard lock(mutex_);
    return counters_;
}

void SimulatedMonitor::recordTrace() {
    const std::lock_guard lock(mutex_);
    isTracing_ = true;
}

std::vector<WireRecord> SimulatedMonitor::trace() const {
    const std::lock_guard lock(mutex_);
    return trace_;
}

}  // namespace vantrel::simulated
