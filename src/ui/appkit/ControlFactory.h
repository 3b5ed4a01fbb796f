// The control of a node's kind.
#pragma once

#include <memory>

#include "ui/Node.h"
#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

std::unique_ptr<AppKitControl> makeControl(layout::Stage& stage, ui::ElementID element, const ui::Node& node);

}  // namespace vantrel::appkit
