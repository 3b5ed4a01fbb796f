// The computer that the command line asks for.
#pragma once

#include <memory>
#include <optional>

#include "app/CommandLine.h"
#include "app/Computer.h"
#include "platform/simulated/Desk.h"

namespace vantrel::app::Computers {

// Where a computer's settings are while it runs.
enum class Settings { forgotten, kept };

// This computer, which the build has to know, unless there is a desk. A simulated
// computer's settings are kept apart from those for real monitors: in the folder that
// the command line names, or the one that is for that.
std::unique_ptr<Computer> make(const CommandLine& line, std::optional<simulated::Desk> desk,
                               Settings settings, runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop);

}  // namespace vantrel::app::Computers
