#include "platform/simulated/SimulatedPlatform.h"

#include <utility>

#include "runtime/Fatal.h"

namespace vantrel::simulated {

SimulatedPlatform::SimulatedPlatform(Desk desk, runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop)
    : scheduler_(scheduler),
      mainLoop_(mainLoop),
      world_(std::move(desk), scheduler, mainLoop),
      displays_(world_),
      services_(world_),
      registry_(world_, services_),
      libraries_(world_, displays_, services_),
      functions_(libraries_),
      workspace_(world_),
      obstacles_(world_.desk().obstacles) {}

platform::Platform SimulatedPlatform::platform(platform::LogSink& sink, platform::Defaults& defaults) {
    return {scheduler_, mainLoop_,  displays_,  registry_,  functions_, baseTables_,
            defaults,   workspace_, localizer_, loginItem_, obstacles_, platform::Log(sink)};
}

SimulatedMonitor& SimulatedPlatform::monitor(platform::DisplayID display) {
    SimulatedMonitor* monitor = world_.monitor(display);
    runtime::require(monitor != nullptr, "a display without a monitor that speaks DDC/CI");
    return *monitor;
}

}  // namespace vantrel::simulated
