#include "app/SimulatedComputer.h"

#include <utility>

#include "platform/posix/FileDefaults.h"

namespace vantrel::app {

SimulatedComputer::SimulatedComputer(simulated::Desk desk, std::optional<std::string> settingsFolder,
                                     runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop)
    : settingsFolder_(std::move(settingsFolder)), simulated_(std::move(desk), scheduler, mainLoop) {}

platform::Platform SimulatedComputer::platform(platform::LogSink& log) {
    if (!settingsFolder_) return simulated_.platform(log);
    defaults_ = std::make_unique<posix::FileDefaults>(files_, *settingsFolder_, log);
    return simulated_.platform(log, *defaults_);
}

}  // namespace vantrel::app
