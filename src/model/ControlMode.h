// How the user wants one monitor's brightness and contrast to be changed.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "text/Text.h"

namespace vantrel::model {

enum class ControlMode { automatic, ddc, software };

// In the order in which they are offered.
inline constexpr std::array allControlModes{ControlMode::automatic, ControlMode::ddc, ControlMode::software};

// As it is stored.
std::string rawValue(ControlMode mode);
// `automatic` for any other text, and for none.
ControlMode controlModeFrom(const std::optional<std::string>& rawValue);

text::Text title(ControlMode mode);
text::Text detail(ControlMode mode);

}  // namespace vantrel::model
