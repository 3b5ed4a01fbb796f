#include "app/StoryActionKind.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "runtime/Fatal.h"
#include "text/Hex.h"

namespace vantrel::app {
namespace {

using simulated::Refusal;

bool contains(const std::vector<std::string_view>& fields, std::string_view field) {
    return std::ranges::find(fields, field) != fields.end();
}

std::string shownLevel(double level) {
    std::array<char, 32> text{};
    const int length = std::snprintf(text.data(), text.size(), "%g", level);
    return std::string(text.data(), static_cast<std::size_t>(length));
}

std::string nameOf(platform::DisplayID id, const simulated::Desk& desk) {
    const auto plan = std::ranges::find(desk.displays, id, &simulated::DisplayPlan::id);
    const std::string number = "id " + std::to_string(id);
    return plan == desk.displays.end() || plan->name.empty() ? number : plan->name + " (" + number + ")";
}

}  // namespace

bool StoryActionKind::takes(std::string_view field) const {
    return needs(field) || contains(optional, field);
}

bool StoryActionKind::needs(std::string_view field) const { return contains(required, field); }

const std::vector<StoryActionKind>& StoryActionKind::all() {
    static const std::vector<StoryActionKind> actions{
        {"openPopover", UserAction::openPopover},
        {"setBuiltInBrightness", UserAction::setBuiltInBrightness, {"brightness"}},
        {"selectInput", UserAction::selectInput, {"display", "input"}},
        {"returnToMac", UserAction::returnToMac, {"display"}},
        {"disableOutput", UserAction::disableOutput, {"display"}, {"input"}},
        {"enableOutput", UserAction::enableOutput, {"display"}},
        {"forget", UserAction::forget, {"display"}},
        {"set", UserAction::set, {"display", "code", "value"}},
        {"trigger", UserAction::trigger, {"display", "code"}},
        {"dimmer", UserAction::dimmer, {"display"}, {"brightness", "contrast"}},
        {"controlMode", UserAction::controlMode, {"display", "mode"}},
        {"setMacInput", UserAction::setMacInput, {"display"}, {"input"}},
        {"setFocusInput", UserAction::setFocusInput, {"display"}, {"input"}},
        {"reload", UserAction::reload, {"display"}},
        {"pressInputButton", MonitorAction::pressInputButton, {"display", "input"}},
        {"adjust", MonitorAction::adjust, {"display", "code", "value"}},
        {"switchOff", MonitorAction::switchOff, {"display"}},
        {"switchOn", MonitorAction::switchOn, {"display"}},
        {"becomeHealthy", MonitorAction::becomeHealthy, {"display"}},
        {"plug", WorldAction::plug, {"display"}},
        {"unplug", WorldAction::unplug, {"display"}},
        {"sleep", WorldAction::sleep},
        {"wake", WorldAction::wake},
        {"openLid", WorldAction::openLid},
        {"closeLid", WorldAction::closeLid},
        {"reconfigure", WorldAction::reconfigure, {"display", "flags"}},
        {"refuse", WorldAction::refuse, {"refusal"}},
        {"quit", ProgramAction::quit},
        {"start", ProgramAction::start},
    };
    return actions;
}

const StoryActionKind& StoryActionKind::of(const StoryAction& action) {
    const auto found = std::ranges::find(all(), action, &StoryActionKind::action);
    runtime::require(found != all().end(), "a story's action has no word");
    return *found;
}

const StoryActionKind* StoryActionKind::named(std::string_view word) {
    const auto found = std::ranges::find(all(), word, &StoryActionKind::word);
    return found == all().end() ? nullptr : &*found;
}

std::string StoryActionKind::describe(const StoryStep& step, const simulated::Desk& desk) {
    const StoryActionKind& kind = of(step.action);
    std::string text(kind.word);
    if (kind.takes("display")) text += " " + nameOf(step.display, desk);
    if (step.input) text += " 0x" + text::upperHex(*step.input);
    if (kind.takes("code")) text += " 0x" + text::upperHex(step.code);
    if (kind.takes("value")) text += " " + std::to_string(step.value);
    if (step.brightness) text += " brightness " + shownLevel(*step.brightness);
    if (step.contrast) text += " contrast " + shownLevel(*step.contrast);
    if (kind.takes("mode")) text += " " + model::rawValue(step.mode);
    if (kind.takes("flags")) text += " 0x" + text::lowerHex(step.flags);
    if (kind.takes("refusal")) text.append(" ").append(refusalWord(step.refusal));
    return text;
}

std::string_view refusalWord(Refusal refusal) {
    switch (refusal) {
        case Refusal::nothing:
            return "nothing";
        case Refusal::begin:
            return "begin";
        case Refusal::enable:
            return "enable";
        case Refusal::complete:
            return "complete";
    }
    runtime::fatal("a refusal of no kind");
}

}  // namespace vantrel::app
