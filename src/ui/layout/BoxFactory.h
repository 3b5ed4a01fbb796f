// The box of a node's kind, with the canvas's control for it, showing the node.
#pragma once

#include <memory>

#include "ui/layout/Box.h"

namespace vantrel::layout {

std::unique_ptr<Box> makeBox(Stage& stage, Canvas& canvas, ui::ElementID element, const ui::Node& node,
                             const Box* parent);

}  // namespace vantrel::layout
