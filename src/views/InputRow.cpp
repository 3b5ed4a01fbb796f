#include "views/InputRow.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "text/Hex.h"
#include "ui/Nodes.h"

namespace vantrel::views {
namespace {

using Display = Environment::Display;
using Input = model::ExternalDisplay::Input;
using ui::Node;

void setOffered(model::InputSettings& settings, Input input, bool isOffered) {
    auto hidden = settings.hidden();
    if (isOffered) {
        hidden.erase(input);
    } else {
        hidden.insert(input);
    }
    settings.setHidden(std::move(hidden));
}

// Without an alias an input has its standard's name.
void setAlias(model::InputSettings& settings, Input input, const std::string& alias) {
    auto aliases = settings.aliases();
    if (alias.empty()) {
        aliases.erase(input);
    } else {
        aliases[input] = alias;
    }
    settings.setAliases(std::move(aliases));
}

std::string aliasOf(const model::InputSettings& settings, Input input) {
    const auto found = settings.aliases().find(input);
    return found == settings.aliases().end() ? std::string() : found->second;
}

bool wasAdded(const model::ExternalDisplay& display, Input input) {
    if (!display.inputSettings().customInputs()) return false;
    const std::vector<Input> detected = display.detectedInputs();
    return std::ranges::find(detected, input) == detected.end();
}

}  // namespace

Node inputRow(const Environment& environment, const Display& display, Input input) {
    const model::InputSettings& settings = display->inputSettings();
    const std::string name = display->inputName(input);
    std::vector<Node> parts{
        Node{ui::Switch{.isOn = !settings.hidden().contains(input)}}
            .onToggle([display, input](bool isOn) { setOffered(display->inputSettings(), input, isOn); })
            .withHelp(environment.translated("Show in the menu"))
            .named(environment.translated("Show %@ in the menu", {name}))
            .key("offered"),
        ui::text("0x" + text::upperHex(input)).width(110),
        Node{ui::TextField{.text = aliasOf(settings, input),
                           .placeholder = environment.translated("Nickname (e.g. Windows PC)")}}
            .onEdit([display, input](const std::string& text) {
                setAlias(display->inputSettings(), input, text);
            })
            .named(environment.translated("Nickname of %@", {name}))
            .fillWidth()
            .key("nickname"),
    };
    if (wasAdded(*display, input)) {
        parts.push_back(ui::symbolButton("minus.circle", environment.translated("Remove this input"))
                            .described(name)
                            .onPress([display, input] { display->removeInput(input); })
                            .key("remove"));
    }
    return ui::row(8, std::move(parts)).fillWidth().key("input " + text::upperHex(input));
}

}  // namespace vantrel::views
