#include "views/DisplaySettings.h"

#include <algorithm>
#include <utility>

#include "mccs/MCCS.h"
#include "text/Hex.h"
#include "ui/Nodes.h"
#include "views/ControlModes.h"
#include "views/InputChoice.h"
#include "views/InputRow.h"

namespace vantrel::views {

using Input = model::ExternalDisplay::Input;
using ui::Font;
using ui::Node;
using ui::Tone;

namespace {

Node note(std::string text) { return ui::wrappedText(std::move(text), Font::caption, Tone::secondary); }

}  // namespace

DisplaySettings::DisplaySettings(const Environment& environment, Environment::Display display)
    : environment_(environment), display_(std::move(display)) {}

Node DisplaySettings::body() {
    std::vector<Node> rows{controlMode()};
    if (!display_->capabilities()) {
        rows.push_back(note(environment_.translated("The monitor did not send its capabilities string, so a "
                                                    "default set of controls is used."))
                           .key("no capabilities"));
    }
    addInputs(rows);
    rows.push_back(inputWhenOff());
    rows.push_back(inputOfComputer());
    rows.push_back(capabilities());
    rows.push_back(rereadButton());
    return {.element = ui::Section{.title = display_->name()}, .children = std::move(rows)};
}

Node DisplaySettings::controlMode() const {
    ui::Picker picker = controlModes(environment_, *display_);
    picker.title = environment_.translated("Control mode");
    const std::string name = picker.title;
    return Node{std::move(picker)}
        .onChoose([display = display_](std::size_t option) {
            display->setControlMode(model::allControlModes.at(option));
        })
        .named(name)
        .fillWidth()
        .key("control mode");
}

void DisplaySettings::addInputs(std::vector<Node>& rows) const {
    rows.push_back(
        note(environment_.translated("Some monitors report the wrong inputs. Adjust the list to match "
                                     "your monitor's physical inputs."))
            .key("inputs"));
    const std::vector<Input> inputs = display_->inputs();
    if (inputs.empty()) {
        rows.push_back(ui::text(environment_.translated("The monitor has not reported its inputs yet."),
                                Font::body, Tone::secondary)
                           .key("no inputs"));
    }
    for (const Input input : inputs) rows.push_back(inputRow(environment_, display_, input));
    rows.push_back(addInputMenu());
    if (!display_->inputSettings().customInputs()) return;
    rows.push_back(ui::button(environment_.translated("Restore Detected Inputs"))
                       .onPress([display = display_] { display->setCustomInputs(std::nullopt); })
                       .key("restore"));
}

Node DisplaySettings::addInputMenu() const {
    const std::vector<Input> present = display_->inputs();
    std::vector<Input> missing;
    ui::Menu menu{.title = environment_.translated("Add Input")};
    for (const auto& [input, name] : mccs::MCCS::inputNames()) {
        if (std::ranges::find(present, input) != present.end()) continue;
        missing.push_back(input);
        menu.options.push_back(environment_.shown(name) + " (0x" + text::upperHex(input) + ")");
    }
    const std::string name = menu.title;
    return Node{std::move(menu)}
        .onChoose(
            [display = display_, missing](std::size_t option) { display->addInput(missing.at(option)); })
        .named(name)
        .enabled(!missing.empty())
        .key("add");
}

Node DisplaySettings::inputWhenOff() const {
    return inputChoice(*display_,
                       {
                           .title = environment_.translated("When turning the Mac output off, switch to"),
                           .none = environment_.translated("Don't switch"),
                           .chosen = display_->inputSettings().focusInput(),
                           .onChoose =
                               [display = display_](std::optional<Input> input) {
                                   display->inputSettings().setFocusInput(input);
                               },
                       })
        .key("when off");
}

Node DisplaySettings::inputOfComputer() const {
    return inputChoice(*display_,
                       {
                           .title = environment_.translated("Input the Mac is connected to"),
                           .none = environment_.translated("Not sure"),
                           .chosen = display_->inputSettings().macInput(),
                           .onChoose =
                               [display = display_](std::optional<Input> input) {
                                   display->inputSettings().setMacInput(input);
                               },
                       })
        .key("of the computer");
}

Node DisplaySettings::capabilities() {
    const std::string title = environment_.translated("Capabilities string (MCCS)");
    Node disclosure{.element = ui::Disclosure{.title = title, .isOpen = showRaw_.get()}};
    if (showRaw_.get() && display_->capabilities()) {
        disclosure.children.push_back(Node{ui::Text{.text = display_->capabilities()->raw,
                                                    .font = Font::caption,
                                                    .wraps = true,
                                                    .isSelectable = true}});
    }
    return std::move(disclosure)
        .named(title)
        .onToggle([this](bool isOpen) { showRaw_.set(isOpen); })
        .fillWidth()
        .key("capabilities");
}

Node DisplaySettings::rereadButton() const {
    return ui::button(environment_.translated("Reread Monitor Capabilities"))
        .onPress([environment = environment_, display = display_] {
            environment.load(display, model::ExternalDisplay::Capabilities::fetched);
        })
        .key("reread");
}

}  // namespace vantrel::views
