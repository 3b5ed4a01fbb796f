// A monitor whose output is off and of which nothing more than its name is known.
#pragma once

#include "ui/Node.h"
#include "views/Environment.h"

namespace vantrel::views {

ui::Node disabledCard(const Environment& environment, const persistence::DisabledDisplay& entry);

}  // namespace vantrel::views
