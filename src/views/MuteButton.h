// Switches a monitor's sound off and on again.
#pragma once

#include <memory>

#include "ui/Node.h"
#include "views/Environment.h"

namespace vantrel::views {

ui::Node muteButton(const Environment& environment, const Environment::Display& display,
                    const std::shared_ptr<model::VCPFeature>& mute);

}  // namespace vantrel::views
