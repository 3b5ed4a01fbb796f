// The inputs of a monitor that the user wants to see, as tiles to switch it with.
#pragma once

#include "ui/Node.h"
#include "views/Environment.h"

namespace vantrel::views {

ui::Node inputPicker(const Environment& environment, const Environment::Display& display);

}  // namespace vantrel::views
