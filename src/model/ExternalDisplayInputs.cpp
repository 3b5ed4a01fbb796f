// What an ExternalDisplay makes of its monitor's inputs.
#include <algorithm>

#include "mccs/MCCS.h"
#include "mccs/MonitorProfiles.h"
#include "model/ExternalDisplay.h"
#include "model/VCPCodes.h"
#include "text/Hex.h"

namespace vantrel::model {

using platform::Log;
using platform::LogLevel;

namespace {

// What most monitors have: DisplayPort 1 and 2, HDMI 1 and 2, USB-C.
constexpr std::array<std::uint16_t, 5> usualInputs{0x0F, 0x10, 0x11, 0x12, 0x1B};

bool contains(const std::vector<std::uint16_t>& inputs, std::uint16_t input) {
    return std::ranges::find(inputs, input) != inputs.end();
}

}  // namespace

std::vector<ExternalDisplay::Input> ExternalDisplay::detectedInputs() const {
    if (inputProfile_ != nullptr) return inputProfile_->inputs;
    const auto listed = listedValues(inputSource);
    if (!listed.empty()) return {listed.begin(), listed.end()};
    return {usualInputs.begin(), usualInputs.end()};
}

std::vector<ExternalDisplay::Input> ExternalDisplay::inputs() const {
    const auto input = feature(inputSource);
    return input ? input->options.get() : std::vector<Input>{};
}

std::vector<ExternalDisplay::Input> ExternalDisplay::visibleInputs() const {
    std::vector<Input> visible = inputs();
    std::erase_if(visible, [this](Input input) { return inputSettings_.hidden().contains(input); });
    return visible;
}

std::string ExternalDisplay::inputName(Input input) const {
    const auto& aliases = inputSettings_.aliases();
    const auto alias = aliases.find(input);
    if (alias != aliases.end() && !alias->second.empty()) return alias->second;
    const auto& names = mccs::MCCS::inputNames();
    if (const auto name = names.find(input); name != names.end())
        return platform_.localizer.shown(name->second);
    return platform_.localizer.shown(text::Text::translated("Input 0x%@", {text::upperHex(input)}));
}

void ExternalDisplay::addInput(Input input) {
    std::vector<Input> all = inputs();
    if (contains(all, input)) return;
    all.push_back(input);
    setCustomInputs(std::move(all));
}

void ExternalDisplay::removeInput(Input input) {
    std::vector<Input> rest = inputs();
    std::erase(rest, input);
    setCustomInputs(std::move(rest));
    if (inputSettings_.focusInput() == input) inputSettings_.setFocusInput(std::nullopt);
    if (inputSettings_.macInput() == input) inputSettings_.setMacInput(std::nullopt);
}

void ExternalDisplay::setCustomInputs(std::optional<std::vector<Input>> inputs) {
    inputSettings_.setCustomInputs(inputs);
    if (const auto input = feature(inputSource))
        input->options.set(inputs ? std::move(*inputs) : detectedInputs());
}

std::optional<ExternalDisplay::Input> ExternalDisplay::normalizedInput(std::uint16_t rawReading) const {
    return mccs::MonitorProfiles::currentInput(rawReading, inputProfile_, inputs());
}

std::optional<ExternalDisplay::Input> ExternalDisplay::noteInput(std::uint16_t rawReading) {
    const std::optional<Input> input = normalizedInput(rawReading);
    log(Log::display, LogLevel::info,
        ": input reads raw " + std::to_string(rawReading) + " → " +
            (input ? "0x" + text::upperHex(*input) : "unknown"));
    const auto shown = feature(inputSource);
    if (input && shown) shown->current.set(input);
    return input;
}

void ExternalDisplay::learnMacInputIfUnknown() {
    const auto shown = feature(inputSource);
    if (inputSettings_.macInput() || !shown || !shown->current.get()) return;
    const Input input = *shown->current.get();
    log(Log::display, LogLevel::standard, ": assuming Mac input is 0x" + text::upperHex(input));
    inputSettings_.setMacInput(input);
}

}  // namespace vantrel::model
