// A Mac.
#include <utility>

#include "app/ExitStatus.h"
#include "app/ThisComputer.h"
#include "platform/macos/MacPlatform.h"

namespace vantrel::app {
namespace {

class MacComputer : public Computer {
  public:
    MacComputer(runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop)
        : platform_(scheduler, mainLoop) {}

    platform::LogSink* systemLog() override { return &platform_.log(); }
    platform::Platform platform(platform::LogSink& log) override { return platform_.platform(log); }

  private:
    macos::MacPlatform platform_;
};

}  // namespace

std::unique_ptr<Computer> ThisComputer::make(runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop) {
    return std::make_unique<MacComputer>(scheduler, mainLoop);
}

int ThisComputer::guardOutputs() { return ExitStatus::nothing; }

bool ThisComputer::isKnown() { return true; }

}  // namespace vantrel::app
