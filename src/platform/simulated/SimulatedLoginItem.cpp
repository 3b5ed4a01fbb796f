#include "platform/simulated/SimulatedLoginItem.h"

#include <utility>

namespace vantrel::simulated {

void SimulatedLoginItem::refuse(std::optional<std::string> reason) { refusal_ = std::move(reason); }

std::optional<std::string> SimulatedLoginItem::become(bool enabled) {
    if (!refusal_) isEnabled_ = enabled;
    return refusal_;
}

}  // namespace vantrel::simulated
