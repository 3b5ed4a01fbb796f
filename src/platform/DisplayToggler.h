// Turns the computer's output to a display on or off, until the user logs out.
// Main thread.
#pragma once

#include "platform/DisplayServices.h"
#include "platform/PrivateFunctions.h"

namespace vantrel::platform::DisplayToggler {

enum class Output { off, on };

// False when the system refused or can't.
bool setEnabled(DisplayServices& displays, PrivateFunctions& functions, DisplayID display, Output output);

}  // namespace vantrel::platform::DisplayToggler
