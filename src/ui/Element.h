// The kinds of things on a screen, as plain values: what each shows, never how it
// is drawn. Texts are as they are shown. Lengths are in points.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "ui/Symbol.h"

namespace vantrel::ui {

enum class Axis { horizontal, vertical };
// Across the axis of a stack.
enum class Alignment { leading, center };
// Headline, control text, and in falling size what explains it.
enum class Font { headline, title, body, callout, caption };
enum class Tone { primary, secondary, warning };
// What a stack lies on: nothing, the panel around a display, a request to confirm.
enum class Background { none, card, warning };

// Containers.

struct Stack {
    Axis axis = Axis::vertical;
    int spacing = 0;
    Alignment alignment = Alignment::leading;
    Background background = Background::none;
    int cornerRadius = 0;

    bool operator==(const Stack&) const = default;
};

// Cells of equal width, filled row by row.
struct Grid {
    int columns = 1;
    int columnSpacing = 0;
    int rowSpacing = 0;

    bool operator==(const Grid&) const = default;
};

// Scrolls vertically what is higher than `maximumHeight`.
struct Scroll {
    int maximumHeight = 0;

    bool operator==(const Scroll&) const = default;
};

// A title that a press opens and closes; the children are there while it is open.
struct Disclosure {
    std::string title = {};
    bool isOpen = false;

    bool operator==(const Disclosure&) const = default;
};

// A settings form: its children are Sections, scrolling when there are too many.
struct Form {
    bool operator==(const Form&) const = default;
};

// A titled group of rows in a Form.
struct Section {
    std::string title = {};

    bool operator==(const Section&) const = default;
};

// Leaves.

struct Text {
    std::string text = {};
    Font font = Font::body;
    Tone tone = Tone::primary;
    // Over as many lines as it needs; otherwise cut at the end of the line.
    bool wraps = false;
    bool isSelectable = false;

    bool operator==(const Text&) const = default;
};

struct Image {
    Symbol symbol = {};
    Font font = Font::body;
    Tone tone = Tone::primary;

    bool operator==(const Image&) const = default;
};

struct Spacer {
    bool operator==(const Spacer&) const = default;
};

struct Divider {
    bool operator==(const Divider&) const = default;
};

// Something is under way for an unknown time.
struct Progress {
    bool operator==(const Progress&) const = default;
};

struct Button {
    enum class Style { bordered, prominent, borderless };

    // One of both may be empty.
    std::string title = {};
    Symbol symbol = {};
    Style style = Style::bordered;
    Font font = Font::body;

    bool operator==(const Button&) const = default;
};

// A button with a picture that may be the chosen one of several.
struct Tile {
    std::string title = {};
    Symbol symbol = {};
    bool isSelected = false;
    // A small picture beside the title; empty for none.
    Symbol badge = {};
    std::string badgeHelp = {};
    int padding = 0;
    int cornerRadius = 0;

    bool operator==(const Tile&) const = default;
};

struct Switch {
    // Empty: no visible label.
    std::string title = {};
    bool isOn = false;

    bool operator==(const Switch&) const = default;
};

struct Slider {
    double value = 0;
    double minimum = 0;
    double maximum = 1;
    // What an arrow key changes; ten of it for a page, a wheel notch in between.
    double step = 0.01;
    double wheelStep = 0.05;

    bool operator==(const Slider&) const = default;
};

// One of several options. With a symbol it is a compact menu under that picture.
struct Picker {
    // Empty: no visible label.
    std::string title = {};
    Symbol symbol = {};
    std::vector<std::string> options = {};
    // Nothing: none is shown as chosen.
    std::optional<std::size_t> selected = {};
    // Explains the chosen option, in the menu.
    std::string note = {};

    bool operator==(const Picker&) const = default;
};

// A button that offers things to do.
struct Menu {
    std::string title = {};
    std::vector<std::string> options = {};

    bool operator==(const Menu&) const = default;
};

struct TextField {
    std::string text = {};
    std::string placeholder = {};

    bool operator==(const TextField&) const = default;
};

using Element = std::variant<Stack, Grid, Scroll, Disclosure, Form, Section, Text, Image, Spacer, Divider,
                             Progress, Button, Tile, Switch, Slider, Picker, Menu, TextField>;

}  // namespace vantrel::ui
