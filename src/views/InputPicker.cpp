#include "views/InputPicker.h"

#include <utility>

#include "model/VCPCodes.h"
#include "text/Hex.h"
#include "ui/Nodes.h"

namespace vantrel::views {
namespace {

using Input = model::ExternalDisplay::Input;
using ui::Node;

// The plug, as far as the input's MCCS number tells it.
ui::Symbol symbolOf(Input input) {
    switch (input) {
        case 0x0F:  // DisplayPort
        case 0x10:
            return "rectangle.connected.to.line.below";
        case 0x11:  // HDMI
        case 0x12:
        case 0x13:
        case 0x14:
            return "cable.connector.horizontal";
        case 0x19:  // USB-C
        case 0x1B:
            return "arrow.right.circle";
        default:
            return "cable.connector";
    }
}

Node tile(const Environment& environment, const Environment::Display& display, Input input) {
    const auto feature = display->feature(model::inputSource);
    ui::Tile tile{.title = display->inputName(input),
                  .symbol = symbolOf(input),
                  .isSelected = feature && feature->current.get() == input,
                  .padding = 6,
                  .cornerRadius = 7};
    if (display->inputSettings().macInput() == input) {
        tile.badge = "laptopcomputer";
        tile.badgeHelp = environment.translated("The Mac is connected to this input");
    }
    const std::string name = tile.title;
    const std::string description = tile.badgeHelp;
    return Node{std::move(tile)}
        .named(name)
        .described(description)
        .onPress([environment, display, input] {
            environment.manager.start(environment.manager.selectInput(input, display));
        })
        .fillWidth()
        .key("input " + text::upperHex(input));
}

}  // namespace

Node inputPicker(const Environment& environment, const Environment::Display& display) {
    Node grid{.element = ui::Grid{.columns = 2, .columnSpacing = 6, .rowSpacing = 6}};
    for (const Input input : display->visibleInputs()) {
        grid.children.push_back(tile(environment, display, input));
    }
    return std::move(grid).fillWidth();
}

}  // namespace vantrel::views
