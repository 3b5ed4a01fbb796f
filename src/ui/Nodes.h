// Shorter ways of writing the nodes that views are mostly made of.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "ui/Node.h"

namespace vantrel::ui {

inline Node column(int spacing, std::vector<Node> children) {
    return {.element = Stack{.axis = Axis::vertical, .spacing = spacing}, .children = std::move(children)};
}

inline Node row(int spacing, std::vector<Node> children) {
    return {.element = Stack{.axis = Axis::horizontal, .spacing = spacing, .alignment = Alignment::center},
            .children = std::move(children)};
}

inline Node text(std::string shown, Font font = Font::body, Tone tone = Tone::primary) {
    return {.element = Text{.text = std::move(shown), .font = font, .tone = tone}};
}

inline Node wrappedText(std::string shown, Font font = Font::body, Tone tone = Tone::primary) {
    return {.element = Text{.text = std::move(shown), .font = font, .tone = tone, .wraps = true}};
}

inline Node image(Symbol symbol, Font font = Font::body, Tone tone = Tone::primary) {
    return {.element = Image{.symbol = std::move(symbol), .font = font, .tone = tone}};
}

// A button's title is also its name.
inline Node button(std::string title, Button::Style style = Button::Style::bordered, Font font = Font::body) {
    Node node{.element = Button{.title = title, .symbol = {}, .style = style, .font = font}};
    return std::move(node).named(std::move(title));
}

inline Node symbolButton(Symbol symbol, std::string name) {
    Node node{.element =
                  Button{.title = {}, .symbol = std::move(symbol), .style = Button::Style::borderless}};
    return std::move(node).named(name).withHelp(name);
}

inline Node spacer() { return {.element = Spacer{}}; }
inline Node divider() { return {.element = Divider{}}; }

}  // namespace vantrel::ui
