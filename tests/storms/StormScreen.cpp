#include "storms/StormScreen.h"

#include <string>
#include <variant>
#include <vector>

#include "ui/outline/Outline.h"

namespace vantrel::storms {

namespace {

constexpr double screenHeight = 1000;

views::Environment environmentOf(model::DisplayManager& manager, platform::Platform& platform) {
    return {manager, platform.localizer, platform.loginItem};
}

// What changes nothing but the views.
bool isHarmless(const ui::Node& node) {
    if (std::holds_alternative<ui::Disclosure>(node.element)) return true;
    const auto& name = node.accessibility.name;
    return name == "Cancel" || name == "Run" || name.starts_with("Video output to ");
}

ui::Event eventFor(const ui::Node& node) {
    if (const auto* disclosure = std::get_if<ui::Disclosure>(&node.element))
        return ui::Toggled{!disclosure->isOpen};
    // Asking to turn an output off only asks.
    if (std::holds_alternative<ui::Switch>(node.element)) return ui::Toggled{false};
    return ui::Pressed{};
}

}  // namespace

StormScreen::StormScreen(model::DisplayManager& manager, platform::Platform& platform)
    : menu_(environmentOf(manager, platform), {.openSettings = [] {},
                                               .quit = [] {},
                                               .screenHeight = [] { return screenHeight; },
                                               .sizeChanged = [](ui::Size) {}}),
      settings_(environmentOf(manager, platform)),
      shownMenu_(platform.mainLoop, menu_),
      shownSettings_(platform.mainLoop, settings_) {}

void StormScreen::look(simulated::Random& random) {
    Shown& shown = random.chance(0.8) ? shownMenu_ : shownSettings_;
    std::vector<ui::Event> events;
    const auto controls = shown.renderer.find([&events](const ui::Node& node) {
        if (!isHarmless(node)) return false;
        events.push_back(eventFor(node));
        return true;
    });
    if (controls.empty()) return;
    const auto any = random.uniform(0, controls.size() - 1);
    shown.host.deliver(controls[any], events[any]);
}

bool StormScreen::check(Verdict& verdict) {
    for (Shown* const shown : {&shownMenu_, &shownSettings_}) {
        if (!shown->host.isUpToDate()) return false;
        const ui::Node fresh = shown->component.body();
        verdict.unless(shown->renderer.tree() == fresh, "the screen does not show what the views say");
        verdict.unless(outline::outlineOf(shown->renderer.tree()) == outline::outlineOf(fresh),
                       "the outline of the screen is not that of the views");
    }
    return true;
}

}  // namespace vantrel::storms
