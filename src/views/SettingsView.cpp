#include "views/SettingsView.h"

#include <vector>

#include "ui/Nodes.h"

namespace vantrel::views {

using ui::Font;
using ui::Node;
using ui::Tone;

SettingsView::SettingsView(const Environment& environment)
    : environment_(environment), launchAtLogin_(environment.loginItem.isEnabled()) {}

Node SettingsView::body() {
    std::vector<Node> sections{general()};
    const auto pass = sections_.pass();
    for (const auto& display : environment_.manager.externals()) {
        DisplaySettings& settings = pass.at({display->id(), display.get()}, [&] {
            return std::make_unique<DisplaySettings>(environment_, display);
        });
        sections.push_back(settings.body().key("display " + std::to_string(display->id())));
    }
    if (environment_.manager.externals().empty()) {
        sections.push_back(
            Node{.element = ui::Section{},
                 .children = {ui::text(environment_.translated("Connect an external monitor to set it up."),
                                       Font::body, Tone::secondary)}}
                .key("no display"));
    }
    return Node{.element = ui::Form{}, .children = std::move(sections)}.width(460).heightBetween(360, 720);
}

Node SettingsView::general() {
    const std::string title = environment_.translated("Open at Login");
    std::vector<Node> rows{
        Node{ui::Switch{.title = title, .isOn = launchAtLogin_.get()}}
            .named(title)
            .onToggle([this](bool isOn) { setLaunchAtLogin(isOn); })
            .fillWidth()
            .key("login"),
    };
    if (const auto& error = loginError_.get()) {
        rows.push_back(ui::wrappedText(*error, Font::caption, Tone::warning).key("login error"));
    }
    return Node{.element = ui::Section{.title = environment_.translated("General")},
                .children = std::move(rows)}
        .key("general");
}

void SettingsView::setLaunchAtLogin(bool enabled) {
    if (enabled == launchAtLogin_.get()) return;
    const auto refusal = enabled ? environment_.loginItem.enable() : environment_.loginItem.disable();
    launchAtLogin_.set(refusal ? environment_.loginItem.isEnabled() : enabled);
    loginError_.set(refusal);
}

}  // namespace vantrel::views
