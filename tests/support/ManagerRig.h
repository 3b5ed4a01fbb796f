// A display manager on a simulated computer in virtual time, with everything in
// between on record: what tests of the manager begin with.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "model/DisplayManager.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "platform/simulated/VirtualTime.h"
#include "runtime/Fatal.h"
#include "runtime/MainLoop.h"
#include "support/CallRecord.h"
#include "support/TestDesks.h"
#include "support/TimedLogSink.h"
#include "support/WatchedDefaults.h"
#include "support/WatchedDisplays.h"
#include "support/WatchedRegistry.h"
#include "support/WatchedWorkspace.h"
#include "support/WireTrace.h"

namespace vantrel::test {

// A line of the manager's category.
inline LogLine displayLine(platform::LogLevel level, std::string text) {
    return {std::string(platform::Log::subsystem), "display", level, std::move(text)};
}
inline LogLine standardLine(std::string text) {
    return displayLine(platform::LogLevel::standard, std::move(text));
}

class ManagerRig {
  public:
    using Duration = runtime::MonotonicClock::duration;
    using Display = std::shared_ptr<model::ExternalDisplay>;

    // The desk's user reads what `localizer` makes of a text, or else English.
    explicit ManagerRig(simulated::Desk desk = usualDesk(), platform::Localizer* localizer = nullptr)
        : simulated(std::move(desk), time, loop), shownBy(localizer ? *localizer : real.localizer) {}
    ~ManagerRig() {
        manager.reset();
        time.finishThreads();
    }
    ManagerRig(const ManagerRig&) = delete;
    ManagerRig& operator=(const ManagerRig&) = delete;

    // Makes the manager, as the program does when it starts.
    model::DisplayManager& start() {
        manager = std::make_unique<model::DisplayManager>(watched);
        return *manager;
    }
    // Makes it and waits until every monitor is loaded.
    model::DisplayManager& startAndLoad() {
        start();
        runFor(std::chrono::seconds(10));
        return *manager;
    }
    // The program ends and begins again; the desk stays as it is.
    model::DisplayManager& restart() {
        manager.reset();
        return start();
    }

    void runFor(Duration duration) { loop.runFor(duration); }
    // Until the operation has ended; nothing else has to. An hour at the most.
    void perform(runtime::Task<> operation) {
        const runtime::TaskHandle handle = manager->start(std::move(operation));
        const auto limit = now() + std::chrono::hours(1);
        while (handle.isRunning() && now() < limit) loop.runFor(std::chrono::milliseconds(10));
        runtime::require(!handle.isRunning(), "an operation does not end");
    }
    runtime::MonotonicTime now() const { return time.now(); }

    Display display(platform::DisplayID id) const { return manager->known(id); }
    simulated::SimulatedMonitor& monitor(platform::DisplayID id) { return simulated.monitor(id); }
    simulated::World& world() { return simulated.world(); }
    std::vector<platform::DisplayID> externalIDs() const {
        std::vector<platform::DisplayID> result;
        for (const Display& external : manager->externals()) result.push_back(external->id());
        return result;
    }
    std::vector<platform::DisplayID> offlineIDs() const {
        std::vector<platform::DisplayID> result;
        for (const auto& [id, model] : manager->offline()) result.push_back(id);
        return result;
    }
    // The moments at which refreshes looked at the online list: each goes on to save
    // who is turned off.
    std::vector<runtime::MonotonicTime> refreshes() const {
        return calls.momentsBefore("online displays", "disabledDisplays = ");
    }
    std::vector<persistence::DisabledDisplay> stored() {
        return persistence::Store::disabledDisplays(defaults);
    }

    simulated::VirtualTime time;
    runtime::MainLoop loop{time};
    CallRecord calls{time};
    TimedLogSink log{time};
    WatchedDefaults defaults{calls};
    simulated::SimulatedPlatform simulated;
    platform::Platform real = simulated.platform(log, defaults);
    WatchedDisplays displays{real.displays, calls};
    WatchedRegistry registry{real.registry, calls};
    WatchedWorkspace workspace{real.workspace, calls};
    platform::Localizer& shownBy;
    platform::Platform watched{real.scheduler, real.mainLoop,   displays,       registry,
                               real.functions, real.baseTables, defaults,       workspace,
                               shownBy,        real.loginItem,  real.obstacles, real.log};
    std::unique_ptr<model::DisplayManager> manager;
};

}  // namespace vantrel::test
