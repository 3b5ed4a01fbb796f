// A slider on a feature of a monitor, under the feature's name. It writes with each
// change; the monitor's worker sends only the newest value.
#pragma once

#include <memory>

#include "ui/Node.h"
#include "views/Environment.h"

namespace vantrel::views {

// Shows 0 while the current value is unknown.
ui::Node featureSlider(const Environment& environment, const Environment::Display& display,
                       const std::shared_ptr<model::VCPFeature>& feature, ui::Symbol symbol);

}  // namespace vantrel::views
