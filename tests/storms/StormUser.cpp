// What the user of a storm does.
#include <algorithm>
#include <array>
#include <chrono>

#include "model/VCPCodes.h"
#include "storms/Storm.h"

namespace vantrel::storms {

using namespace std::chrono_literals;
using model::ControlMode;
using model::ExternalDisplay;
using Kind = mccs::VCPInfo::Kind;

namespace {

runtime::Task<> loadFromScratch(std::shared_ptr<ExternalDisplay> display) {
    co_await display->load(ExternalDisplay::Capabilities::fetched);
}

constexpr std::array<std::uint16_t, 8> anyInputs{0x0F, 0x10, 0x11, 0x12, 0x1B, 0x01, 0x03, 0x77};

std::string describe(const std::shared_ptr<ExternalDisplay>& display) {
    return display->name() + " (id " + std::to_string(display->id()) + ")";
}

}  // namespace

void Storm::act() {
    const auto kind = random_.uniform(0, 99);
    if (kind >= 97) {
        nextStep("restart");
        counts_.note(Seen::restart);
        quitProgram();
        return startProgram();
    }
    if (kind >= 94) {
        nextStep("popover opens");
        counts_.note(Seen::refresh);
        manager_->refresh();
        return afterEvent();
    }
    if (kind >= 92) {
        nextStep("scheduled refresh");
        counts_.note(Seen::scheduleRefresh);
        return manager_->scheduleRefresh();
    }
    if (kind >= 89) {
        nextStep("load all");
        counts_.note(Seen::loadAll);
        return manager_->loadAll();
    }
    if (kind >= 87) {
        nextStep("clear error");
        counts_.note(Seen::clearError);
        return invariants_.userClearsError([this] { manager_->clearLastError(); });
    }
    if (kind >= 78) return turnOutputOn();
    if (kind >= 75) return forget();
    const Display display = someDisplay();
    if (!display) return;
    if (kind < 18) return selectInput(display);
    if (kind < 30) return returnToMac(display);
    if (kind < 40) return turnOutputOff(display);
    if (kind < 48) return setValue(display);
    if (kind < 53) return slide(display);
    if (kind < 56) return trigger(display);
    if (kind < 60) return load(display);
    if (kind < 65) return changeInputSettings(display);
    if (kind < 68) return changeMacInput(display);
    if (kind < 71) return editInputs(display);
    dim(display);
}

// Null without any.
Storm::Display Storm::someDisplay() {
    std::vector<Display> displays = manager_->externals();
    for (const auto& [id, display] : manager_->offline()) displays.push_back(display);
    if (displays.empty()) return nullptr;
    // Often the first: storms need several things to happen to one display.
    return random_.chance(0.3) ? displays.front() : displays[random_.uniform(0, displays.size() - 1)];
}

Storm::Feature Storm::someFeature(const Display& display) {
    std::vector<Feature> features;
    for (const auto& [code, feature] : display->features()) {
        const bool isWritten = feature->info.kind == Kind::continuous || feature->info.kind == Kind::choice;
        if (isWritten && code != model::inputSource) features.push_back(feature);
    }
    if (features.empty()) return nullptr;
    return features[random_.uniform(0, features.size() - 1)];
}

std::uint16_t Storm::someValue(const Feature& feature) {
    const auto& options = feature->options.get();
    if (!options.empty() && feature->info.kind == Kind::choice)
        return options[random_.uniform(0, options.size() - 1)];
    return static_cast<std::uint16_t>(random_.uniform(0, feature->maximum.get()));
}

Storm::Input Storm::someInput(const Display& display) {
    const auto inputs = display->inputs();
    if (inputs.empty() || random_.chance(0.05)) return anyInputs[random_.uniform(0, anyInputs.size() - 1)];
    return inputs[random_.uniform(0, inputs.size() - 1)];
}

void Storm::selectInput(const Display& display) {
    const auto mac = display->inputSettings().macInput();
    const Input input = mac && random_.chance(0.3) ? *mac : someInput(display);
    nextStep("select input " + std::to_string(input) + " on " + describe(display));
    counts_.note(input == mac ? Seen::selectMacInput : Seen::selectInput);
    manager_->start(manager_->selectInput(input, display));
}

void Storm::returnToMac(const Display& display) {
    nextStep("return " + describe(display));
    counts_.note(Seen::returnToMac);
    manager_->start(manager_->returnToMac(display));
    if (random_.chance(0.5)) return;
    if (random_.chance(0.3)) {
        // Another input and back again, about when the last reading is on its way.
        const auto on = manager_->disabled().empty() ? 0ms : 1500ms;
        runFor(on + random_.duration(2100ms, 2500ms));
        selectInput(display);
        nextStep("and at once return " + describe(display));
        counts_.note(Seen::returnToMac);
        manager_->start(manager_->returnToMac(display));
        return;
    }
    // Most returns that something else meets are in the middle of it.
    runFor(random_.duration(0s, 12s));
    if (random_.chance(0.6)) {
        selectInput(display);
        if (random_.chance(0.5)) return;
        runFor(random_.duration(0ms, 1500ms));
    }
    nextStep("return again " + describe(display));
    counts_.note(Seen::returnToMac);
    manager_->start(manager_->returnToMac(display));
}

void Storm::turnOutputOff(const Display& display) {
    std::optional<Input> input;
    if (random_.chance(0.4)) input = someInput(display);
    nextStep("output off " + describe(display) + (input ? " to " + std::to_string(*input) : ""));
    counts_.note(input ? Seen::turnOutputOffAndSwitch : Seen::turnOutputOff);
    manager_->start(manager_->disableOutput(display, input));
}

void Storm::turnOutputOn() {
    if (manager_->disabled().empty()) return;
    const auto entry = manager_->disabled()[random_.uniform(0, manager_->disabled().size() - 1)];
    nextStep("output on " + entry.name);
    counts_.note(Seen::turnOutputOn);
    manager_->enableOutput(entry);
}

void Storm::forget() {
    if (manager_->disabled().empty()) return;
    const auto entry = manager_->disabled()[random_.uniform(0, manager_->disabled().size() - 1)];
    nextStep("forget " + entry.name);
    counts_.note(Seen::forget);
    manager_->forget(entry);
}

void Storm::write(const Display& display, const Feature& feature, std::uint16_t value) {
    display->set(*feature, value);
    verdict_.unless(feature->current.get() == value, "a value set is not shown at once");
    if (display->hasWorker()) asked_[invariants_.workerOf(display)][feature->code] = value;
}

void Storm::setValue(const Display& display) {
    const Feature feature = someFeature(display);
    if (!feature) return;
    const std::uint16_t value = someValue(feature);
    nextStep("set " + std::to_string(feature->code) + " of " + describe(display) + " to " +
             std::to_string(value));
    counts_.note(Seen::setValue);
    write(display, feature, value);
}

void Storm::slide(const Display& display) {
    const Feature feature = someFeature(display);
    if (!feature) return;
    nextStep("slide " + std::to_string(feature->code) + " of " + describe(display));
    counts_.note(Seen::slide);
    for (std::uint64_t moves = random_.uniform(5, 30); moves > 0; --moves) {
        write(display, feature, someValue(feature));
        loop_.runFor(random_.duration(0ms, 30ms));
    }
}

void Storm::trigger(const Display& display) {
    std::vector<Feature> actions;
    for (const auto& [code, feature] : display->features()) {
        if (feature->info.kind == Kind::action) actions.push_back(feature);
    }
    if (actions.empty()) return;
    const Feature action = actions[random_.uniform(0, actions.size() - 1)];
    nextStep("trigger " + std::to_string(action->code) + " of " + describe(display));
    counts_.note(Seen::trigger);
    display->trigger(*action);
    if (!display->hasWorker()) return;
    asked_[invariants_.workerOf(display)][action->code] = action->info.actionValue;
}

void Storm::load(const Display& display) {
    nextStep("load " + describe(display) + " from scratch");
    counts_.note(Seen::forcedLoad);
    manager_->start(loadFromScratch(display));
}

void Storm::changeInputSettings(const Display& display) {
    nextStep("change input settings of " + describe(display));
    counts_.note(Seen::changeInputSettings);
    auto& settings = display->inputSettings();
    const Input input = someInput(display);
    switch (random_.uniform(0, 2)) {
        case 0: {
            auto aliases = settings.aliases();
            aliases[input] = random_.chance(0.8) ? "Name " + std::to_string(step_) : "";
            return settings.setAliases(std::move(aliases));
        }
        case 1: {
            auto hidden = settings.hidden();
            if (hidden.erase(input) == 0) hidden.insert(input);
            return settings.setHidden(std::move(hidden));
        }
        default:
            return settings.setFocusInput(random_.chance(0.8) ? std::optional(input) : std::nullopt);
    }
}

void Storm::changeMacInput(const Display& display) {
    nextStep("change the computer's input of " + describe(display));
    counts_.note(Seen::changeMacInput);
    display->inputSettings().setMacInput(random_.chance(0.8) ? std::optional(someInput(display))
                                                             : std::nullopt);
}

void Storm::editInputs(const Display& display) {
    nextStep("edit inputs of " + describe(display));
    counts_.note(Seen::editInputList);
    const auto& custom = display->inputSettings().customInputs();
    auto expected = display->inputs();
    switch (random_.uniform(0, 2)) {
        case 0: {
            const Input added = anyInputs[random_.uniform(0, anyInputs.size() - 1)];
            display->addInput(added);
            if (std::ranges::find(expected, added) != expected.end()) return;
            expected.push_back(added);
            return verdict_.unless(custom == expected, "an input added is not on the user's list");
        }
        case 1: {
            const Input removed = someInput(display);
            display->removeInput(removed);
            std::erase(expected, removed);
            return verdict_.unless(custom == expected, "an input removed is still on the user's list");
        }
        default:
            display->setCustomInputs(std::nullopt);
            return verdict_.unless(!custom, "the user's list of inputs was not given up");
    }
}

void Storm::dim(const Display& display) {
    const auto level = static_cast<double>(random_.uniform(0, 100)) / 100;
    nextStep("dim " + describe(display));
    if (random_.chance(0.4)) {
        counts_.note(Seen::changeMode);
        return display->setControlMode(model::allControlModes[random_.uniform(0, 2)]);
    }
    counts_.note(Seen::dim);
    if (random_.chance(0.6)) return display->dimmer().setBrightness(level);
    display->dimmer().setContrast(level);
}

}  // namespace vantrel::storms
