#include "views/ExternalCard.h"

#include <algorithm>
#include <iterator>

#include "model/VCPCodes.h"
#include "text/Hex.h"
#include "ui/Nodes.h"
#include "views/Card.h"
#include "views/CardHeader.h"
#include "views/ControlModeMenu.h"
#include "views/FeatureSlider.h"
#include "views/InputPicker.h"
#include "views/MuteButton.h"
#include "views/NoDDCNote.h"
#include "views/SoftwareControls.h"
#include "views/TurnOnButton.h"

namespace vantrel::views {

using LoadState = model::ExternalDisplay::LoadState;
using ui::Button;
using ui::Font;
using ui::Node;

ExternalCard::ExternalCard(const Environment& environment, Display display,
                           std::optional<persistence::DisabledDisplay> disabledEntry)
    : environment_(environment),
      display_(std::move(display)),
      disabledEntry_(std::move(disabledEntry)),
      loading_(environment_.load(display_, model::ExternalDisplay::Capabilities::cachedIfAny)) {}

ExternalCard::~ExternalCard() { loading_.cancel(); }

Node ExternalCard::body() {
    const auto rows = rows_.pass();
    std::vector<Node> parts{header()};
    if (confirmingDisable_.get()) {
        parts.push_back(confirmationPanel());
        return card(std::move(parts));
    }
    if (display_->usesSoftwareControls()) {
        parts.push_back(softwareControls(environment_, display_).key("software"));
    }
    if (display_->loadState() == LoadState::unavailable) {
        parts.push_back(noDDCNote(environment_, display_).key("no DDC"));
    } else if (display_->loadState() != LoadState::ready && display_->features().empty()) {
        parts.push_back(loadingRow());
    } else {
        std::ranges::move(controls(rows), std::back_inserter(parts));
    }
    return card(std::move(parts));
}

Node ExternalCard::header() {
    return cardHeader({.title = display_->name(),
                       .subtitle = subtitle(),
                       .symbol = "display",
                       .accessory = accessory()})
        .key("header");
}

std::string ExternalCard::subtitle() const {
    if (display_->isReturningToMac()) return environment_.translated("Returning to the Mac…");
    if (disabledEntry_) return environment_.translated("Mac output off");
    if (display_->loadState() != LoadState::unavailable) return reachableSubtitle();
    if (display_->usesSoftwareControls()) return environment_.translated("Software control");
    return environment_.translated("No DDC response");
}

std::string ExternalCard::reachableSubtitle() const {
    const auto input = display_->feature(model::inputSource);
    if (!input || !input->current.get()) return environment_.translated("DDC/CI");
    return environment_.translated("Current input: %@", {display_->inputName(*input->current.get())});
}

std::vector<Node> ExternalCard::accessory() {
    if (disabledEntry_) return {turnOnButton(environment_, *disabledEntry_)};
    return {
        controlModeMenu(environment_, display_).key("control mode"),
        // The card only has it while the output is on, so it always stands on.
        Node{ui::Switch{.isOn = true}}
            .withHelp(environment_.translated("The Mac's video output to this monitor"))
            .named(environment_.translated("Video output to %@", {display_->name()}))
            .onToggle([this](bool isOn) {
                if (!isOn) confirmingDisable_.set(true);
            })
            .key("output"),
    };
}

Node ExternalCard::confirmationPanel() {
    Node buttons = ui::row(
        8, {
               ui::spacer(),
               ui::button(environment_.translated("Cancel"), Button::Style::bordered, Font::callout)
                   .onPress([this] { confirmingDisable_.set(false); })
                   .key("cancel"),
               ui::button(environment_.translated("Turn Output Off"), Button::Style::prominent, Font::callout)
                   .onPress([this] {
                       confirmingDisable_.set(false);
                       auto& manager = environment_.manager;
                       manager.start(manager.disableOutput(display_, std::nullopt));
                   })
                   .key("turn off"),
           });
    return Node{
        .element = ui::Stack{.axis = ui::Axis::vertical,
                             .spacing = 10,
                             .background = ui::Background::warning,
                             .cornerRadius = 8},
        .children = {ui::wrappedText(confirmationText(), Font::callout), std::move(buttons).fillWidth()}}
        .padding(10)
        .fillWidth()
        .key("confirmation");
}

std::string ExternalCard::confirmationText() const {
    std::string text = environment_.translated(
        "The Mac stops sending a picture to %@ and its windows move to the other displays.",
        {display_->name()});
    if (const auto input = display_->inputSettings().focusInput()) {
        text += " " +
                environment_.translated("First, the monitor switches to %@.", {display_->inputName(*input)});
    }
    return text + " " + environment_.translated("To bring it back, use Turn On here in the menu.");
}

Node ExternalCard::loadingRow() const {
    return ui::row(6,
                   {
                       Node{ui::Progress{}},
                       ui::text(environment_.translated("Reading the monitor over DDC…"), Font::callout,
                                ui::Tone::secondary),
                   })
        .key("loading");
}

std::vector<Node> ExternalCard::controls(const Rows::Pass& rows) {
    std::vector<Node> parts;
    if (!display_->usesSoftwareControls()) {
        if (const auto brightness = display_->feature(model::brightness)) {
            parts.push_back(slider(brightness, "sun.max.fill"));
        }
        if (const auto contrast = display_->feature(model::contrast)) {
            parts.push_back(slider(contrast, "circle.lefthalf.filled"));
        }
    }
    if (const auto volume = display_->feature(model::volume)) parts.push_back(volumeRow(volume));
    if (display_->feature(model::inputSource)) {
        parts.push_back(inputPicker(environment_, display_).key("inputs"));
    }
    if (!display_->extraGroups().empty()) parts.push_back(moreSettings(rows));
    return parts;
}

Node ExternalCard::slider(const FeatureRow::Feature& feature, ui::Symbol symbol) const {
    return featureSlider(environment_, display_, feature, std::move(symbol))
        .key("feature " + text::upperHex(feature->code));
}

Node ExternalCard::volumeRow(const FeatureRow::Feature& volume) const {
    std::vector<Node> parts{slider(volume, "speaker.wave.2.fill")};
    if (const auto mute = display_->feature(model::mute)) {
        parts.push_back(muteButton(environment_, display_, mute).key("mute"));
    }
    return ui::row(8, std::move(parts)).fillWidth().key("volume");
}

Node ExternalCard::moreSettings(const Rows::Pass& rows) {
    const std::string title = environment_.translated("More Monitor Settings");
    Node more{.element = ui::Disclosure{.title = title, .isOpen = showMore_.get()}};
    if (showMore_.get()) {
        std::vector<Node> list;
        for (const auto& [group, features] : display_->extraGroups()) {
            list.push_back(ui::text(environment_.shown(mccs::VCPInfo::title(group)), Font::callout,
                                    ui::Tone::secondary));
            for (const auto& feature : features) {
                FeatureRow& row = rows.at({feature->code, feature.get()}, [&] {
                    return std::make_unique<FeatureRow>(environment_, display_, feature);
                });
                list.push_back(row.body().key("feature " + text::upperHex(feature->code)));
            }
        }
        more.children.push_back(ui::column(12, std::move(list)).padding(6).fillWidth());
    }
    return std::move(more)
        .named(title)
        .onToggle([this](bool isOpen) { showMore_.set(isOpen); })
        .fillWidth()
        .key("more");
}

}  // namespace vantrel::views
