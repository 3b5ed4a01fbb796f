// The computer that the program really runs on, as far as this build knows its system.
#pragma once

#include <memory>

#include "app/Computer.h"

namespace vantrel::app::ThisComputer {

// Null when it doesn't. Scheduler and loop outlive the computer.
std::unique_ptr<Computer> make(runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop);

// Whether make() gives one.
bool isKnown();

// Runs as the process that keeps a light on the desktop while outputs are turned off;
// gives the exit status. Where the system does that by itself there is nothing to do.
int guardOutputs();

}  // namespace vantrel::app::ThisComputer
