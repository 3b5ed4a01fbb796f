// The desk as it stands at the moment: what is plugged in, switched on, shown.
//
// Every change of the online list reaches the reconfiguration callbacks as a begin
// phase and then an add or a remove, both as work of the main loop. Any change of
// cables, outputs or the lid is a reconfiguration: transfer tables are reset, and
// AV service handles may go stale.
// A monitor that pulses its hot-plug line is off the online list and the bus for
// exactly the pulse, whether or not the main loop runs; only the callbacks wait
// for the loop.
//
// Threads: the queries from any thread; what happens to the world, the tables and
// the callbacks on the main thread.
#pragma once

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "platform/DisplayServices.h"
#include "platform/DisplayToggler.h"
#include "platform/simulated/Announcements.h"
#include "platform/simulated/Desk.h"
#include "platform/simulated/SimulatedMonitor.h"
#include "platform/simulated/TransferTables.h"
#include "runtime/MainLoop.h"

namespace vantrel::simulated {

class World {
  public:
    using Output = platform::DisplayToggler::Output;

    // Scheduler and loop must outlive it.
    World(Desk desk, runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop);
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    // Queries. A display that is not of this desk is neither plugged in nor online.
    const Desk& desk() const { return desk_; }
    const DisplayPlan* plan(platform::DisplayID display) const;
    // Null when it has none.
    SimulatedMonitor* monitor(platform::DisplayID display) const;
    std::vector<platform::DisplayID> online() const;
    bool isOnline(platform::DisplayID display) const;
    bool isPluggedIn(platform::DisplayID display) const;
    // Plugged in and not in the middle of a pulse.
    bool isConnected(platform::DisplayID display) const;
    bool isAsleep() const { return isAsleep_; }
    // How many there were.
    std::uint64_t reconfigurations() const { return reconfigurations_; }
    // Nothing for a panel that is off or has no level to set.
    std::optional<float> brightness(platform::DisplayID display) const;
    // False for such a panel and for what is no number; clamped to 0...1.
    bool setBrightness(platform::DisplayID display, float level);
    TransferTables& tables() { return tables_; }

    // What happens to the desk. An unknown display stops the program.
    // Plugging a display in turns the computer's output to it on.
    void plug(platform::DisplayID display);
    void unplug(platform::DisplayID display);
    // The cable stays where it is, so the monitor still hears DDC/CI.
    void setOutput(platform::DisplayID display, Output output);
    void openLid();
    void closeLid();
    // A reconfiguration that ends with `flags` and leaves the online list as it is.
    void reconfigure(platform::DisplayID display, std::uint32_t flags);
    // Asleep, no transfer gets through. Waking tells the monitors and the program.
    void sleep();
    void wake();

    // Where the program hears of it.
    Announcements& announcements() { return announcements_; }

  private:
    struct State {
        bool isPluggedIn = false;
        Output output = Output::on;
        float brightness = 0;
        std::unique_ptr<SimulatedMonitor> monitor;
        // What the callbacks were told last. Main thread.
        bool wasOnline = false;
    };

    State& state(platform::DisplayID display);
    bool isConnected(const State& state, runtime::MonotonicTime now) const;
    bool isOnline(const DisplayPlan& plan, runtime::MonotonicTime now) const;
    void setLid(bool isOpen);
    void reconfigured();
    void expect(platform::DisplayID display, const Pulse& pulse);
    void announceIfChanged(platform::DisplayID display);

    const Desk desk_;
    runtime::Scheduler& scheduler_;
    runtime::MainLoop& mainLoop_;
    TransferTables tables_;
    Announcements announcements_;
    std::atomic<std::uint64_t> reconfigurations_ = 0;
    std::atomic<bool> isAsleep_ = false;

    // Guards the states but wasOnline, and the lid. Their keys never change.
    mutable std::mutex mutex_;
    std::map<platform::DisplayID, State> states_;
    bool isLidOpen_ = true;
};

}  // namespace vantrel::simulated
