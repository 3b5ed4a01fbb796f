// What a person who doesn't see the screen is told about a node. An interactive
// node has a name.
#pragma once

#include <string>

namespace vantrel::ui {

struct Accessibility {
    std::string name = {};
    // For a control whose value isn't a text of its own: "42%".
    std::string value = {};
    std::string description = {};

    bool operator==(const Accessibility&) const = default;
};

}  // namespace vantrel::ui
