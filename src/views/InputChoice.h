// A titled choice of one of a monitor's visible inputs, or of none.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "ui/Node.h"
#include "views/Environment.h"

namespace vantrel::views {

struct InputChoice {
    using Input = model::ExternalDisplay::Input;

    std::string title;
    // What choosing none is called.
    std::string none;
    // An input that isn't visible is shown as no choice at all.
    std::optional<Input> chosen;
    std::function<void(std::optional<Input>)> onChoose;
};

ui::Node inputChoice(const model::ExternalDisplay& display, InputChoice choice);

}  // namespace vantrel::views
