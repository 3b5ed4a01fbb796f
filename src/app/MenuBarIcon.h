// The status item's picture: a monitor on a stand, and two four-pointed sparkles.
// A template: only its opacity matters.
#pragma once

#include <vector>

#include "ui/Drawing.h"

namespace vantrel::app::MenuBarIcon {

// 20 by 16 points. Made on first use and kept.
const ui::Drawing& image();

// A closed star with concave sides whose tips are `radius` from its centre.
std::vector<ui::PathStep> sparkle(ui::Point center, double radius);

}  // namespace vantrel::app::MenuBarIcon
