#include "app/StoryCheck.h"

#include <algorithm>

#include "app/StoryActionKind.h"
#include "platform/simulated/JSONText.h"
#include "text/Hex.h"

namespace vantrel::app::StoryCheck {
namespace {

using simulated::Desk;
using simulated::DisplayPlan;
using simulated::Mistake;

bool has(const std::optional<simulated::MonitorPlan>& monitor, std::uint16_t input) {
    return monitor->inputs &&
           std::ranges::find(monitor->inputs->available, input) != monitor->inputs->available.end();
}

std::optional<Mistake> missing(const StoryStep& step, const std::string& place, const Desk& desk) {
    const StoryActionKind& kind = StoryActionKind::of(step.action);
    if (step.action == StoryAction(UserAction::setBuiltInBrightness) &&
        std::ranges::none_of(desk.displays, &DisplayPlan::isBuiltIn)) {
        return Mistake{place, "the desk \"" + desk.title + "\" has no built-in display"};
    }
    if (!kind.takes("display")) return std::nullopt;

    const std::string displayPlace = simulated::JSONText::memberPlace(place, "display");
    const auto plan = std::ranges::find(desk.displays, step.display, &DisplayPlan::id);
    if (plan == desk.displays.end()) {
        return Mistake{displayPlace,
                       "the desk \"" + desk.title + "\" has no display " + std::to_string(step.display)};
    }
    if (std::holds_alternative<UserAction>(step.action) && plan->isBuiltIn) {
        return Mistake{displayPlace, plan->name + " is not an external monitor"};
    }
    if (!std::holds_alternative<MonitorAction>(step.action)) return std::nullopt;
    if (!plan->monitor) return Mistake{displayPlace, plan->name + " does not speak DDC/CI"};
    if (step.input && !has(plan->monitor, *step.input)) {
        return Mistake{simulated::JSONText::memberPlace(place, "input"),
                       plan->name + " has no input 0x" + text::upperHex(*step.input)};
    }
    return std::nullopt;
}

}  // namespace

std::optional<Mistake> missing(const Story& story, const Desk& desk) {
    for (std::size_t index = 0; index < story.steps.size(); ++index) {
        const std::string place = simulated::JSONText::elementPlace("steps", index);
        if (auto mistake = missing(story.steps[index], place, desk)) return mistake;
    }
    return std::nullopt;
}

}  // namespace vantrel::app::StoryCheck
