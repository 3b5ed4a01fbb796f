// What a person did to a control. A change that the program made is no event.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <variant>

#include "ui/Size.h"

namespace vantrel::ui {

// A button or a tile.
struct Pressed {};
// A switch or a disclosure.
struct Toggled {
    bool isOn;
};
// A slider; as often as it moves.
struct Slid {
    double value;
};
// An option of a picker or a menu, by its position.
struct Chosen {
    std::size_t option;
};
// A text field; after each change.
struct Edited {
    std::string text;
};
// An item of a context menu, by its position.
struct ContextChosen {
    std::size_t item;
};
// Not a person's doing: the laid-out size of a node with Layout::reportsSize.
struct Resized {
    Size size;
};

using Event = std::variant<Pressed, Toggled, Slid, Chosen, Edited, ContextChosen, Resized>;

}  // namespace vantrel::ui
