#include "ui/outline/Outline.h"

#include <limits>
#include <locale>
#include <sstream>
#include <string_view>
#include <vector>

namespace vantrel::outline {
namespace {

// However a text is made up, it stays in its line.
std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char character : text) {
        if (character == '\n') {
            result += "\\n";
            continue;
        }
        if (character == '"' || character == '\\') result += '\\';
        result += character;
    }
    return result + '"';
}

// Without the locale's decimal comma, and with all digits that are surely the number's.
// (std::to_chars has no fractions on macOS 13.0.)
std::string number(double value) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.precision(std::numeric_limits<double>::digits10);
    text << value;
    return text.str();
}

std::string list(const std::vector<std::string>& options, std::optional<std::size_t> selected) {
    std::string result;
    for (std::size_t index = 0; index < options.size(); ++index) {
        if (!result.empty()) result += ", ";
        result += (selected == index ? "*" : "") + quoted(options[index]);
    }
    return "[" + result + "]";
}

// The line of one node, put together from left to right.
class Line {
  public:
    void word(std::string_view word) {
        if (word.empty()) return;
        if (!line_.empty()) line_ += ' ';
        line_ += word;
    }
    void text(std::string_view text) {
        if (!text.empty()) word(quoted(text));
    }
    void property(std::string_view name, std::string_view text) {
        if (!text.empty()) line_ += ", " + std::string(name) + " " + quoted(text);
    }
    void property(std::string_view name) { line_ += ", " + std::string(name); }
    std::string take() { return std::move(line_); }

    void operator()(const ui::Stack& stack) {
        word(stack.axis == ui::Axis::vertical ? "column" : "row");
        if (stack.background == ui::Background::card) word("card");
        if (stack.background == ui::Background::warning) word("warning");
    }
    void operator()(const ui::Grid& grid) { word("grid of " + std::to_string(grid.columns)); }
    void operator()(const ui::Scroll& scroll) {
        word("scroll up to " + std::to_string(scroll.maximumHeight));
    }
    void operator()(const ui::Disclosure& disclosure) {
        word("disclosure");
        text(disclosure.title);
        word(disclosure.isOpen ? "open" : "closed");
    }
    void operator()(const ui::Form&) { word("form"); }
    void operator()(const ui::Section& section) {
        word("section");
        text(section.title);
    }
    void operator()(const ui::Text& shown) {
        word("text");
        word(quoted(shown.text));
        if (shown.tone == ui::Tone::secondary) word("secondary");
        if (shown.tone == ui::Tone::warning) word("warning");
        if (shown.isSelectable) word("selectable");
    }
    void operator()(const ui::Image& image) {
        word("image");
        word(image.symbol);
        if (image.tone == ui::Tone::warning) word("warning");
    }
    void operator()(const ui::Spacer&) { word("spacer"); }
    void operator()(const ui::Divider&) { word("divider"); }
    void operator()(const ui::Progress&) { word("progress"); }
    void operator()(const ui::Button& button) {
        word("button");
        text(button.title);
        word(button.symbol);
        if (button.style == ui::Button::Style::prominent) word("prominent");
        if (button.style == ui::Button::Style::borderless) word("borderless");
    }
    void operator()(const ui::Tile& tile) {
        word("tile");
        text(tile.title);
        word(tile.symbol);
        if (tile.isSelected) word("selected");
        if (!tile.badge.empty()) property("badge " + tile.badge, tile.badgeHelp);
    }
    void operator()(const ui::Switch& control) {
        word("switch");
        text(control.title);
        word(control.isOn ? "on" : "off");
    }
    void operator()(const ui::Slider& slider) {
        word("slider " + number(slider.value) + " of " + number(slider.minimum) + "..." +
             number(slider.maximum));
    }
    void operator()(const ui::Picker& picker) {
        word("picker");
        text(picker.title);
        word(picker.symbol);
        word(list(picker.options, picker.selected));
        property("note", picker.note);
    }
    void operator()(const ui::Menu& menu) {
        word("menu");
        text(menu.title);
        word(list(menu.options, std::nullopt));
    }
    void operator()(const ui::TextField& field) {
        word("text field");
        word(quoted(field.text));
        property("placeholder", field.placeholder);
    }

  private:
    std::string line_;
};

// The text by which a sighted person knows it.
std::string visibleName(const ui::Element& element) {
    return std::visit(
        []<class E>(const E& shown) -> std::string {
            if constexpr (std::is_same_v<E, ui::Text>) return shown.text;
            if constexpr (requires { shown.title; }) return shown.title;
            return {};
        },
        element);
}

std::string lineOf(const ui::Node& node) {
    Line line;
    std::visit([&line](const auto& element) { line(element); }, node.element);
    if (!node.isEnabled) line.property("disabled");
    const ui::Accessibility& accessibility = node.accessibility;
    line.property("value", accessibility.value);
    if (accessibility.name != visibleName(node.element)) line.property("named", accessibility.name);
    line.property("described", accessibility.description);
    if (node.help != accessibility.name) {
        line.property("help", node.help);
    } else if (!node.help.empty()) {
        line.property("help");
    }
    if (!node.contextMenu.empty()) line.property("context menu " + list(node.contextMenu, std::nullopt));
    line.property("key", node.id);
    return line.take();
}

void append(std::string& outline, const ui::Node& node, std::size_t depth) {
    outline += std::string(2 * depth, ' ') + lineOf(node) + "\n";
    for (const ui::Node& child : node.children) append(outline, child, depth + 1);
}

}  // namespace

std::string outlineOf(const ui::Node& node) {
    std::string outline;
    append(outline, node, 0);
    return outline;
}

}  // namespace vantrel::outline
