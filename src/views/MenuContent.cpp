#include "views/MenuContent.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "ui/Nodes.h"
#include "views/BuiltInCard.h"
#include "views/DisabledCard.h"

namespace vantrel::views {

using ui::Button;
using ui::Font;
using ui::Node;
using ui::Tone;

namespace {

// What the popover needs beside its cards, and what has to be left of the screen.
constexpr double heightBesideCards = 220;
constexpr double leastHeight = 240;

Node noMonitor(const Environment& environment) {
    return Node{.element = ui::Stack{.alignment = ui::Alignment::center},
                .children = {ui::text(environment.translated("No external monitor connected."), Font::callout,
                                      Tone::secondary)}}
        .padding(0, 12)
        .fillWidth()
        .key("no monitor");
}

}  // namespace

MenuContent::MenuContent(const Environment& environment, Surroundings surroundings)
    : environment_(environment), surroundings_(std::move(surroundings)) {}

Node MenuContent::body() {
    std::vector<Node> parts{title()};
    if (const auto note = surroundings_.note(); !note.empty()) {
        parts.push_back(ui::wrappedText(note, Font::caption, Tone::secondary).fillWidth().key("note"));
    }
    if (const auto& text = environment_.manager.lastError()) {
        parts.push_back(error(*text, [environment = environment_] {
                            environment.manager.clearLastError();
                        }).key("error"));
    }
    for (const std::string& text : environment_.manager.obstacles()) {
        parts.push_back(error(text, [environment = environment_, text] {
                            environment.manager.dismissObstacle(text);
                        }).key("obstacle " + text));
    }
    parts.push_back(Node{.element = ui::Scroll{.maximumHeight = maximumHeight()}, .children = {cards()}});
    parts.push_back(ui::divider());
    parts.push_back(footer());
    return ui::column(10, std::move(parts)).padding(12).width(340).onResize([this](ui::Size size) {
        surroundings_.sizeChanged(size);
    });
}

Node MenuContent::title() const {
    std::vector<Node> parts;
    if (!surroundings_.icon.empty()) parts.push_back(ui::image(surroundings_.icon).width(22).height(22));
    parts.push_back(ui::text(environment_.shown(text::Text::verbatim("Vantrel")), Font::headline));
    parts.push_back(ui::spacer());
    return ui::row(8, std::move(parts)).fillWidth().key("title");
}

Node MenuContent::error(const std::string& text, std::function<void()> dismiss) const {
    return ui::row(
               6,
               {
                   ui::image("exclamationmark.triangle.fill", Font::caption, Tone::warning),
                   ui::wrappedText(text, Font::caption, Tone::warning).fillWidth(),
                   ui::symbolButton("xmark", environment_.translated("Dismiss")).onPress(std::move(dismiss)),
               })
        .fillWidth();
}

Node MenuContent::cards() {
    const auto pass = cards_.pass();
    const model::DisplayManager& manager = environment_.manager;
    std::vector<Node> column;
    for (const Entry& entry : manager.disabled()) column.push_back(cardOfDisabled(entry, pass));
    for (const auto& display : manager.externals()) {
        ExternalCard& card = pass.at({display->id(), false, display.get()}, [&] {
            return std::make_unique<ExternalCard>(environment_, display, std::nullopt);
        });
        column.push_back(card.body().key("connected " + std::to_string(display->id())));
    }
    if (manager.builtIn()) column.push_back(builtInCard(environment_, manager.builtIn()).key("built-in"));
    if (manager.externals().empty() && manager.disabled().empty()) column.push_back(noMonitor(environment_));
    return ui::column(10, std::move(column)).fillWidth();
}

Node MenuContent::cardOfDisabled(const Entry& entry, const Cards::Pass& cards) {
    const std::string number = std::to_string(entry.id);
    const auto& offline = environment_.manager.offline();
    const auto known = offline.find(entry.id);
    if (known == offline.end() || !known->second->hasWorker()) {
        return disabledCard(environment_, entry).key("unreachable " + number);
    }
    const auto& display = known->second;
    ExternalCard& card = cards.at({entry.id, true, display.get()}, [&] {
        return std::make_unique<ExternalCard>(environment_, display, entry);
    });
    return card.body().key("turned off " + number);
}

Node MenuContent::footer() const {
    const auto button = [&](const char* title, const std::function<void()>& action) {
        return ui::button(environment_.translated(title), Button::Style::borderless, Font::callout)
            .onPress(action)
            .key(title);
    };
    return ui::row(8, {button("Settings", surroundings_.openSettings), ui::spacer(),
                       button("Quit", surroundings_.quit)})
        .fillWidth()
        .key("footer");
}

int MenuContent::maximumHeight() const {
    return static_cast<int>(std::max(leastHeight, surroundings_.screenHeight() - heightBesideCards));
}

}  // namespace vantrel::views
