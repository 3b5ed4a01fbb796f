// One input of a monitor in the settings: whether it is offered, which it is, and
// what its user calls it.
#pragma once

#include "ui/Node.h"
#include "views/Environment.h"

namespace vantrel::views {

ui::Node inputRow(const Environment& environment, const Environment::Display& display,
                  model::ExternalDisplay::Input input);

}  // namespace vantrel::views
