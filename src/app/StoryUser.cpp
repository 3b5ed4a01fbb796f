#include "app/StoryUser.h"

#include <algorithm>
#include <utility>

#include "model/ExternalDisplay.h"
#include "runtime/Fatal.h"
#include "text/Hex.h"

namespace vantrel::app {
namespace {

using Kind = mccs::VCPInfo::Kind;

runtime::Task<> reload(std::shared_ptr<model::ExternalDisplay> display) {
    co_await display->load(model::ExternalDisplay::Capabilities::fetched);
}

std::string noControl(const model::ExternalDisplay& display, std::uint8_t code) {
    return display.name() + " has no control 0x" + text::upperHex(code) + " for that";
}

}  // namespace

StoryUser::Refusal StoryUser::perform(UserAction action, const StoryStep& step) {
    const auto start = [&](auto operation) {
        return withDisplay(step, [&](const Display& display) { return this->start(operation(display)); });
    };
    const auto change = [&](auto change) {
        return withDisplay(step, [&](const Display& display) { return change(*display), Refusal(); });
    };
    switch (action) {
        case UserAction::openPopover:
            return openPopover();
        case UserAction::setBuiltInBrightness:
            return setBuiltInBrightness(step);
        case UserAction::selectInput:
            return start([&](const Display& d) { return manager_.selectInput(step.input.value(), d); });
        case UserAction::returnToMac:
            return start([&](const Display& d) { return manager_.returnToMac(d); });
        case UserAction::disableOutput:
            return start([&](const Display& d) { return manager_.disableOutput(d, step.input); });
        case UserAction::reload:
            return start(reload);
        case UserAction::enableOutput:
            return withEntry(step, [&](const Entry& entry) { manager_.enableOutput(entry); });
        case UserAction::forget:
            return withEntry(step, [&](const Entry& entry) { manager_.forget(entry); });
        case UserAction::set:
            return withDisplay(step, [&](const Display& display) { return set(display, step); });
        case UserAction::trigger:
            return withDisplay(step, [&](const Display& display) { return trigger(display, step); });
        case UserAction::dimmer:
            return withDisplay(step, [&](const Display& display) { return dim(display, step); });
        case UserAction::controlMode:
            return change([&](model::ExternalDisplay& d) { d.setControlMode(step.mode); });
        case UserAction::setMacInput:
            return change([&](model::ExternalDisplay& d) { d.inputSettings().setMacInput(step.input); });
        case UserAction::setFocusInput:
            return change([&](model::ExternalDisplay& d) { d.inputSettings().setFocusInput(step.input); });
    }
    runtime::fatal("a user's action of no kind");
}

// As the menu bar's popover does it, before it shows.
StoryUser::Refusal StoryUser::openPopover() {
    manager_.refresh();
    manager_.loadAll();
    return std::nullopt;
}

StoryUser::Refusal StoryUser::setBuiltInBrightness(const StoryStep& step) {
    if (!manager_.builtIn()) return "the program shows no built-in display";
    manager_.builtIn()->setBrightness(static_cast<float>(step.brightness.value()));
    return std::nullopt;
}

StoryUser::Refusal StoryUser::withDisplay(const StoryStep& step,
                                          const std::function<Refusal(const Display&)>& act) {
    const auto& externals = manager_.externals();
    const auto isIt = [&step](const Display& display) { return display->id() == step.display; };
    if (const auto online = std::ranges::find_if(externals, isIt); online != externals.end()) {
        return act(Display(*online));
    }
    const auto off = manager_.offline().find(step.display);
    if (off != manager_.offline().end()) return act(Display(off->second));
    return "the program shows no display " + std::to_string(step.display);
}

StoryUser::Refusal StoryUser::withEntry(const StoryStep& step, const std::function<void(const Entry&)>& act) {
    const auto& disabled = manager_.disabled();
    const auto found = std::ranges::find(disabled, step.display, &Entry::id);
    if (found == disabled.end()) {
        return "display " + std::to_string(step.display) + " is not among those turned off";
    }
    act(Entry(*found));
    return std::nullopt;
}

StoryUser::Refusal StoryUser::set(const Display& display, const StoryStep& step) {
    const auto feature = display->feature(step.code);
    const bool canBeSet =
        feature && feature->info.kind != Kind::action && feature->info.kind != Kind::readOnly;
    if (!canBeSet) return noControl(*display, step.code);
    display->set(*feature, step.value);
    return std::nullopt;
}

StoryUser::Refusal StoryUser::trigger(const Display& display, const StoryStep& step) {
    const auto feature = display->feature(step.code);
    if (!feature || feature->info.kind != Kind::action) return noControl(*display, step.code);
    display->trigger(*feature);
    return std::nullopt;
}

StoryUser::Refusal StoryUser::dim(const Display& display, const StoryStep& step) {
    if (!display->usesSoftwareControls()) return display->name() + " is not dimmed by software";
    if (step.brightness) display->dimmer().setBrightness(*step.brightness);
    if (step.contrast) display->dimmer().setContrast(*step.contrast);
    return std::nullopt;
}

StoryUser::Refusal StoryUser::start(runtime::Task<> operation) {
    manager_.start(std::move(operation));
    return std::nullopt;
}

}  // namespace vantrel::app
