#include "views/ControlModeMenu.h"

#include <utility>

#include "views/ControlModes.h"

namespace vantrel::views {

ui::Node controlModeMenu(const Environment& environment, const Environment::Display& display) {
    ui::Picker picker = controlModes(environment, *display);
    picker.symbol = display->usesSoftwareControls() ? "wand.and.rays" : "dial.medium";
    picker.note = environment.shown(model::detail(display->controlMode()));
    const std::string description =
        environment.translated("Control mode: %@", {environment.shown(model::title(display->controlMode()))});
    return ui::Node{std::move(picker)}
        .onChoose(
            [display](std::size_t option) { display->setControlMode(model::allControlModes.at(option)); })
        .named(description)
        .withHelp(description);
}

}  // namespace vantrel::views
