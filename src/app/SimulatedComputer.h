// A simulated desk as the computer that the program runs on.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/Computer.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/simulated/SimulatedPlatform.h"

namespace vantrel::app {

class SimulatedComputer : public Computer {
  public:
    // Settings are kept in the folder, or, without one, until the program ends.
    // Scheduler and loop outlive it.
    SimulatedComputer(simulated::Desk desk, std::optional<std::string> settingsFolder,
                      runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop);

    platform::LogSink* systemLog() override { return nullptr; }
    platform::Platform platform(platform::LogSink& log) override;

  private:
    std::optional<std::string> settingsFolder_;
    posix::PosixFileSystem files_;
    std::unique_ptr<platform::Defaults> defaults_;
    simulated::SimulatedPlatform simulated_;
};

}  // namespace vantrel::app
