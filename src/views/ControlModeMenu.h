// The choice of how a monitor's brightness and contrast are changed, as a small
// menu under a symbol that tells how they are changed now.
#pragma once

#include "ui/Node.h"
#include "views/Environment.h"

namespace vantrel::views {

ui::Node controlModeMenu(const Environment& environment, const Environment::Display& display);

}  // namespace vantrel::views
