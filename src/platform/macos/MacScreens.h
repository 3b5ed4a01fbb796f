// The screens that the displays carry. Main thread.
#pragma once

#include <optional>
#include <string>

#include "platform/DisplayServices.h"

namespace vantrel::macos::MacScreens {

// In the user's language; nothing when there is no such screen.
std::optional<std::string> name(platform::DisplayID display);

}  // namespace vantrel::macos::MacScreens
