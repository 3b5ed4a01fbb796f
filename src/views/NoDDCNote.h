// Why a monitor that gives no answer over DDC/CI can't be controlled, and what a
// user can do about it.
#pragma once

#include "ui/Node.h"
#include "views/Environment.h"

namespace vantrel::views {

ui::Node noDDCNote(const Environment& environment, const Environment::Display& display);

}  // namespace vantrel::views
