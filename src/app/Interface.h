// The program with its interface on the desktop.
#pragma once

#include <optional>
#include <ostream>

#include "platform/simulated/Desk.h"

namespace vantrel::app {

struct CommandLine;

namespace Interface {

// Runs it on this computer, which the build has to know, or on a simulated desk, until
// the user quits; gives the exit status. A second one opens the first one's popover and
// ends.
// Errors: one line on `errors`.
int run(const CommandLine& line, std::optional<simulated::Desk> desk, std::ostream& errors);

// Draws it on the desks that come with the program, in the states that matter, into
// PNG files in line.screenshot, which is made if it is missing; lists them on
// `output`. Needs no desktop.
int draw(const CommandLine& line, std::ostream& output, std::ostream& errors);

}  // namespace Interface
}  // namespace vantrel::app
