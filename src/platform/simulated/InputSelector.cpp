#include "platform/simulated/InputSelector.h"

#include <algorithm>
#include <utility>

namespace vantrel::simulated {

using runtime::MonotonicTime;

InputSelector::InputSelector(InputPlan plan, const Personality& personality)
    : plan_(std::move(plan)),
      readings_(personality.inputReadings),
      manner_(personality.inputSwitch),
      isSilentElsewhere_(personality.silentOnOtherInputs),
      returns_(personality.inputSwitch.returns),
      ignores_(personality.inputSwitch.ignored),
      settled_(plan_.shown) {}

std::optional<Pulse> InputSelector::request(std::uint16_t input, MonotonicTime now, Random& random) {
    if (!has(input) || isOnItsWay(input, now)) return std::nullopt;
    if (ignored_ && ignored_->input == input && now - ignored_->at <= repeatWindow) return std::nullopt;
    if (ignores_.next(random)) {
        ignored_ = Ignored{input, now};
        return std::nullopt;
    }
    return begin(input, returns_.next(random) ? Outcome::returns : Outcome::settles, now);
}

std::optional<Pulse> InputSelector::press(std::uint16_t input, MonotonicTime now) {
    if (!has(input) || isOnItsWay(input, now)) return std::nullopt;
    return begin(input, Outcome::settles, now);
}

std::uint16_t InputSelector::shown(MonotonicTime now) const {
    const bool isOver = switch_ && now >= switch_->end;
    return isOver && switch_->outcome == Outcome::settles ? switch_->to : settled_;
}

std::uint16_t InputSelector::reading(MonotonicTime now) const {
    const std::uint16_t input = shown(now);
    const auto found = readings_.find(input);
    return found == readings_.end() ? input : found->second;
}

std::uint16_t InputSelector::maximum() const {
    const auto greatest = std::max_element(plan_.available.begin(), plan_.available.end());
    return greatest == plan_.available.end() ? std::uint16_t{0} : *greatest;
}

bool InputSelector::isSilent(MonotonicTime now) const {
    const bool isSwitching = switch_ && now < switch_->end;
    if (isSwitching && manner_.silent) return true;
    return isSilentElsewhere_ && shown(now) != plan_.computer;
}

bool InputSelector::isOnBus(MonotonicTime now) const {
    return !pulse_ || now < pulse_->from || now >= pulse_->to;
}

void InputSelector::becomeHealthy(MonotonicTime now) {
    settled_ = shown(now);
    if (switch_ && now >= switch_->end) switch_.reset();
    if (switch_) switch_->outcome = Outcome::settles;
    if (pulse_ && now < pulse_->from) pulse_.reset();
    manner_ = InputSwitch{};
    isSilentElsewhere_ = false;
    returns_ = Occasions();
    ignores_ = Occasions();
    ignored_.reset();
}

bool InputSelector::has(std::uint16_t input) const {
    return std::find(plan_.available.begin(), plan_.available.end(), input) != plan_.available.end();
}

bool InputSelector::isOnItsWay(std::uint16_t input, MonotonicTime now) const {
    if (switch_ && now < switch_->end) return switch_->to == input;
    return shown(now) == input;
}

std::optional<Pulse> InputSelector::begin(std::uint16_t input, Outcome outcome, MonotonicTime now) {
    settled_ = shown(now);
    switch_ = Switch{input, now + manner_.time, outcome};
    const bool isAway = !isOnBus(now);
    if (manner_.pulse <= Duration::zero() || isAway) return std::nullopt;
    const MonotonicTime from = now + manner_.pulseAfter;
    pulse_ = Pulse{from, from + manner_.pulse};
    return pulse_;
}

}  // namespace vantrel::simulated
