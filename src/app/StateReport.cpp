#include "app/StateReport.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <optional>

#include "mccs/MCCS.h"
#include "model/VCPCodes.h"
#include "platform/simulated/TransferTables.h"
#include "runtime/Fatal.h"
#include "text/Hex.h"

namespace vantrel::app {
namespace {

using model::ExternalDisplay;
using model::VCPFeature;
using simulated::DisplayPlan;
using LoadState = ExternalDisplay::LoadState;
using Kind = mccs::VCPInfo::Kind;

std::string shown(double level) {
    std::array<char, 32> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.2f", level);
    return std::string(text.data(), static_cast<std::size_t>(length));
}

std::string shown(LoadState state) {
    switch (state) {
        case LoadState::idle:
            return "idle";
        case LoadState::loading:
            return "loading";
        case LoadState::ready:
            return "ready";
        case LoadState::unavailable:
            return "unavailable";
    }
    runtime::fatal("a load state of no kind");
}

std::string inputText(std::uint16_t input) {
    const auto& names = mccs::MCCS::inputNames();
    const auto name = names.find(input);
    return "0x" + text::upperHex(input) + (name == names.end() ? "" : " " + name->second.english());
}

std::string inputText(std::optional<std::uint16_t> input, const std::string& none) {
    return input ? inputText(*input) : none;
}

std::string valueText(const VCPFeature& feature, std::uint16_t value) {
    return feature.info.kind == Kind::choice ? feature.label(value).english() : std::to_string(value);
}

std::string valueText(const VCPFeature& feature) {
    if (feature.info.kind == Kind::action) return "a button";
    const auto value = feature.current.get();
    if (!value) return "unknown";
    const bool hasMaximum = feature.info.kind == Kind::continuous;
    return valueText(feature, *value) +
           (hasMaximum ? " of " + std::to_string(feature.maximum.get()) : std::string());
}

std::shared_ptr<ExternalDisplay> displayOf(const model::DisplayManager& manager, platform::DisplayID id) {
    for (const auto& display : manager.externals()) {
        if (display->id() == id) return display;
    }
    const auto off = manager.offline().find(id);
    return off == manager.offline().end() ? nullptr : off->second;
}

}  // namespace

void StateReport::print() {
    printProgram();
    for (const DisplayPlan& plan : simulated_.world().desk().displays) {
        output_ << "\n" << (plan.name.empty() ? "No name" : plan.name) << " (id " << plan.id << ")\n";
        if (manager_ != nullptr) printShown(plan);
        printReality(plan);
    }
    output_ << std::flush;
}

void StateReport::printProgram() {
    if (manager_ == nullptr) {
        output_ << "Program: not running\n";
        return;
    }
    std::string off;
    for (const auto& entry : manager_->disabled()) off += (off.empty() ? "" : ", ") + entry.name;
    output_ << "Last error: " << manager_->lastError().value_or("none") << "\n"
            << "Operations under way: " << manager_->runningTasks() << "\n"
            << "Turned off: " << (off.empty() ? "none" : off) << "\n";
}

void StateReport::printShown(const DisplayPlan& plan) {
    if (plan.isBuiltIn) {
        const auto& builtIn = manager_->builtIn();
        line(builtIn ? "brightness: " + shown(static_cast<double>(builtIn->brightness())) : "not shown");
        return;
    }
    const auto display = displayOf(*manager_, plan.id);
    if (!display) return line("not shown");
    printExternal(*display, plan);
}

void StateReport::printExternal(ExternalDisplay& display, const DisplayPlan& plan) {
    const auto input = display.feature(model::inputSource);
    const auto& settings = display.inputSettings();
    line("key: " + display.key());
    line(std::string("output: ") + (display.isOutputEnabled() ? "on" : "off"));
    if (display.isReturningToMac()) line("returning to the Mac");
    line("DDC/CI: " + shown(display.loadState()));
    line("control: " + model::rawValue(display.controlMode()));
    line("input: " + (input ? inputText(input->current.get(), "unknown") : "none"));
    line("Mac input: " + inputText(settings.macInput(), "unknown"));
    line("focus input: " + inputText(settings.focusInput(), "none"));
    line(std::string("dimmer: ") + (display.dimmer().isActive() ? "on" : "off") + ", brightness " +
         shown(display.dimmer().brightness()) + ", contrast " + shown(display.dimmer().contrast()));
    printFeatures(display, plan);
}

void StateReport::printFeatures(ExternalDisplay& display, const DisplayPlan& plan) {
    const simulated::SimulatedMonitor* monitor = simulated_.world().monitor(plan.id);
    for (const auto& [code, feature] : display.features()) {
        if (code == model::inputSource) continue;
        std::string fact =
            "0x" + text::upperHex(code) + " " + feature->info.name.english() + ": " + valueText(*feature);
        const auto held = monitor == nullptr ? std::nullopt : monitor->value(code);
        if (held && feature->info.kind != Kind::action && held != feature->current.get()) {
            fact += "; the monitor holds " + valueText(*feature, *held);
        }
        line(fact);
    }
}

void StateReport::printReality(const DisplayPlan& plan) {
    const simulated::World& world = simulated_.world();
    std::string state = "online";
    if (!world.isOnline(plan.id)) state = plan.isBuiltIn ? "lid closed" : "no picture from the computer";
    if (!world.isPluggedIn(plan.id)) state = "unplugged";
    if (const simulated::SimulatedMonitor* monitor = world.monitor(plan.id)) {
        if (const auto input = monitor->shownInput()) {
            state += ", shows " + inputText(*input);
            if (*input == plan.monitor->inputs->computer) state += ", the computer's";
        }
    }
    line("on the desk: " + state);
    const auto level = world.brightness(plan.id);
    if (level) line("panel: " + shown(static_cast<double>(*level)));
    printTransferTable(plan);
}

// Only what somebody would see: a table that isn't the display's own.
void StateReport::printTransferTable(const DisplayPlan& plan) {
    const auto samples = plan.transferTableCapacity;
    const auto table = simulated_.world().tables().table(plan.id, samples);
    if (!table || *table == simulated::TransferTables::linear(samples)) return;
    line("picture: dimmed, white is " + shown(static_cast<double>(table->red.back())) + ", black is " +
         shown(static_cast<double>(table->red.front())));
}

void StateReport::line(const std::string& fact) { output_ << "  " << fact << "\n"; }

}  // namespace vantrel::app
