// A whole simulated computer with a desk of monitors, behind the seam.
//
//     VirtualTime time;
//     runtime::MainLoop loop(time);
//     SimulatedPlatform simulated(desk, time, loop);
//     const platform::Platform platform = simulated.platform(sink);
//     simulated.world().unplug(2);
//
// Threads: main thread; what `platform` hands out keeps the seam's own rules.
// Lifetime: one at a time. Scheduler and loop outlive it; it outlives everything
// that uses its platform, so finish the scheduler's threads before it goes.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/EnglishLocalizer.h"
#include "platform/MemoryDefaults.h"
#include "platform/Platform.h"
#include "platform/simulated/AVServiceTable.h"
#include "platform/simulated/Desk.h"
#include "platform/simulated/SimulatedDisplayServices.h"
#include "platform/simulated/SimulatedLibraries.h"
#include "platform/simulated/SimulatedLoginItem.h"
#include "platform/simulated/SimulatedObstacles.h"
#include "platform/simulated/SimulatedRegistry.h"
#include "platform/simulated/SimulatedWorkspace.h"
#include "platform/simulated/World.h"

namespace vantrel::simulated {

class SimulatedPlatform {
  public:
    SimulatedPlatform(Desk desk, runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop);

    // Settings that end with the simulation.
    platform::Platform platform(platform::LogSink& sink) { return platform(sink, memoryDefaults_); }
    // Sink and settings must outlive what it returns.
    platform::Platform platform(platform::LogSink& sink, platform::Defaults& defaults);
    platform::MemoryDefaults& memoryDefaults() { return memoryDefaults_; }

    // Cables, lid, sleep: what happens to the computer and its desk.
    World& world() { return world_; }
    // A display without a monitor stops the program.
    SimulatedMonitor& monitor(platform::DisplayID display);
    // The step of every display configuration that fails from now on.
    void refuse(Refusal refusal) { displays_.refuse(refusal); }
    // The system's reason to change no login item from now on; nothing: it does.
    void refuseLoginItem(std::optional<std::string> reason) { loginItem_.refuse(std::move(reason)); }

    // What the user is told to be in the way from the next look on.
    void obstruct(std::vector<text::Text> obstacles) { obstacles_.set(std::move(obstacles)); }

    // What the program has taken and not given back.
    std::size_t liveServices() const { return services_.live(); }
    std::size_t openConfigurations() const { return displays_.openConfigurations(); }

  private:
    runtime::Scheduler& scheduler_;
    runtime::MainLoop& mainLoop_;
    World world_;
    SimulatedDisplayServices displays_;
    AVServiceTable services_;
    SimulatedRegistry registry_;
    SimulatedLibraries libraries_;
    platform::PrivateFunctions functions_;
    platform::BaseTables baseTables_{displays_};
    platform::MemoryDefaults memoryDefaults_;
    SimulatedWorkspace workspace_;
    platform::EnglishLocalizer localizer_;
    SimulatedLoginItem loginItem_;
    SimulatedObstacles obstacles_;
};

}  // namespace vantrel::simulated
