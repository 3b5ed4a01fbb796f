// Writes a desk as the desk file that DeskFile reads it from.
#pragma once

#include <string>

#include "platform/simulated/Desk.h"

namespace vantrel::simulated::DeskWriter {

// Of a personality only whether the monitor is dead, which is all that a recording
// needs: another one stops the program. Texts are valid UTF-8.
std::string text(const Desk& desk);

}  // namespace vantrel::simulated::DeskWriter
