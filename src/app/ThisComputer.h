// The computer that the program really runs on, as far as this build knows its system.
#pragma once

#include <memory>

#include "app/Computer.h"

namespace vantrel::app::ThisComputer {

// Null when it doesn't. Scheduler and loop outlive the computer.
std::unique_ptr<Computer> make(runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop);

// Whether make() gives one.
bool isKnown();

}  // namespace vantrel::app::ThisComputer
