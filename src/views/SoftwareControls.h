// Brightness and contrast of a picture that is dimmed on the computer's side.
#pragma once

#include "ui/Node.h"
#include "views/Environment.h"

namespace vantrel::views {

ui::Node softwareControls(const Environment& environment, const Environment::Display& display);

}  // namespace vantrel::views
