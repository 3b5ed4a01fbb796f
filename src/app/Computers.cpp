#include "app/Computers.h"

#include <utility>

#include "app/SimulatedComputer.h"
#include "app/ThisComputer.h"
#include "platform/posix/StateFolder.h"
#include "runtime/Fatal.h"

namespace vantrel::app {
namespace {

std::optional<std::string> folderOf(const CommandLine& line) {
    return line.state ? line.state : posix::StateFolder::simulated(posix::StateFolder::environment());
}

}  // namespace

std::unique_ptr<Computer> Computers::make(const CommandLine& line, std::optional<simulated::Desk> desk,
                                          Settings settings, runtime::Scheduler& scheduler,
                                          runtime::MainLoop& mainLoop) {
    if (!desk) {
        auto computer = ThisComputer::make(scheduler, mainLoop);
        runtime::require(computer != nullptr, "a build that knows no computer runs on one");
        return computer;
    }
    auto folder = settings == Settings::kept ? folderOf(line) : std::nullopt;
    return std::make_unique<SimulatedComputer>(std::move(*desk), std::move(folder), scheduler, mainLoop);
}

}  // namespace vantrel::app
