// The computer's own panel.
#pragma once

#include <memory>

#include "ui/Node.h"
#include "views/Environment.h"

namespace vantrel::views {

ui::Node builtInCard(const Environment& environment, const std::shared_ptr<model::BuiltInDisplay>& display);

}  // namespace vantrel::views
