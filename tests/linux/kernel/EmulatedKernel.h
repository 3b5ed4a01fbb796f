// A Linux kernel whose graphics card has a desk's displays plugged in: connectors with
// their EDIDs in /sys/class/drm, I2C buses with the desk's monitors on them, a backlight,
// and the events of udev. The process, and programs that it starts, meet them under the
// usual paths, through the usual calls.
//
// Beside the displays' buses, which begin with i2c-4, there are two that nobody may
// write to: an SMBus, and one that a touch pad could be on.
//
// The monitors live in the given clock's time, see BusClock.
// Threads: main thread; the buses may be used from any. Lifetime: the loop and the
// clock must outlive it; nobody may be in a call to one of its nodes when it goes.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

#include "linux/kernel/EmulatedBus.h"
#include "linux/kernel/EmulatedNode.h"
#include "linux/kernel/Testbed.h"
#include "platform/simulated/Desk.h"
#include "runtime/MainLoop.h"

namespace vantrel::test {

class EmulatedKernel {
  public:
    using BusTime = BusClock::BusTime;
    enum class Output { on, off };
    // How it shows which bus leads to a connector's display.
    enum class Wiring {
        link,   // "ddc" in the connector's folder leads to it; HDMI-A-n
        child,  // its folder is in the connector's; DP-n, and eDP-n for a panel
        none,   // not at all: the EDID at 0x50 is the connector's; DP-n
    };
    using Wirings = std::map<platform::DisplayID, Wiring>;

    static constexpr int firstBus = 4;

    // Displays that `wirings` doesn't name have the three in turn, a panel is a child.
    EmulatedKernel(const simulated::Desk& desk, runtime::MainLoop& mainLoop, runtime::Clock& clock,
                   BusTime busTime, const Wirings& wirings = {});
    EmulatedKernel(const EmulatedKernel&) = delete;
    EmulatedKernel& operator=(const EmulatedKernel&) = delete;
    ~EmulatedKernel();

    // What a display is. One that the desk doesn't have stops the program.
    // "card0-DP-1"
    const std::string& connector(platform::DisplayID display) const;
    // Its folder below /sys.
    std::string connectorPath(platform::DisplayID display) const;
    // Nothing while it has none.
    std::optional<int> busNumber(platform::DisplayID display) const;
    // "/dev/i2c-4", of the bus that it has or had.
    std::string node(platform::DisplayID display) const;
    EmulatedNode::Counters nodeCounters(platform::DisplayID display) const;
    // Where transfers are counted and spoiled.
    EmulatedBus& bus(platform::DisplayID display);
    simulated::SimulatedMonitor& monitor(platform::DisplayID display) { return bus(display).monitor(); }

    // The buses that have nothing to do with displays, by number.
    const std::map<int, std::shared_ptr<EmulatedBus>>& otherBuses() const { return otherBuses_; }
    // Messages on those that could have done harm: any that was written to a monitor's address.
    std::uint64_t strayWrites() const;

    // What happens. The system hears of it as from the kernel.
    // Plugging a display in turns the computer's output to it on.
    void plug(platform::DisplayID display);
    void unplug(platform::DisplayID display);
    // The kernel sends no event for that.
    void setOutput(platform::DisplayID display, Output output);
    // The bus goes while the display stays, as with a dock or a driver.
    void removeBus(platform::DisplayID display);
    void restoreBus(platform::DisplayID display);
    void restoreBus(platform::DisplayID display, int number);

    // Transfers on the bus wait from now on. `stuck` is called in the main loop for each
    // that begins to. In virtual time its user keeps all others from going on, too.
    void hang(platform::DisplayID display, std::function<void()> stuck = {});
    void resume(platform::DisplayID display);
    // Whether this user may open the node. A process that is to be denied anything must
    // not have a superuser's rights: withoutSuperuser().
    void denyNode(platform::DisplayID display);
    void allowNode(platform::DisplayID display);
    // Its owner and the group may.
    void lendNode(platform::DisplayID display, gid_t group);

    // The panel's backlight: its folder below /sys, nothing for a desk without a panel
    // that has a brightness.
    const std::optional<std::string>& backlightPath() const { return backlightPath_; }
    static constexpr int maximumBacklight = 96000;
    int backlight() const;
    // Somebody else changes it.
    void setBacklight(int level);
    void denyBacklight();
    void allowBacklight();

  private:
    struct Display;

    Display& display(platform::DisplayID display);
    const Display& display(platform::DisplayID display) const;
    void addDisplay(const simulated::DisplayPlan& plan, Wiring wiring, std::shared_ptr<EmulatedBus> bus);
    void addOtherBuses(BusTime busTime);
    void addBacklight(const std::string& connectorPath, float level);
    void addBus(Display& display);
    void addBus(int number, const std::string& parent, const std::string& name,
                std::shared_ptr<EmulatedBus> bus);
    // A monitor that leaves its bus for a moment leaves its connector, too.
    void expectPulses(Display& display);
    // Writes what the connector shows, with an event if its display has come or gone.
    void show(Display& display);
    std::string pathOf(const Display& display) const;
    std::string adapterOf(const Display& display) const;
    runtime::MainLoop::Work whileThere(runtime::MainLoop::Work work) const;

    runtime::MainLoop& mainLoop_;
    runtime::Clock& clock_;
    std::map<platform::DisplayID, Display> displays_;
    std::map<int, std::shared_ptr<EmulatedBus>> otherBuses_;
    // By number; they outlive the test bed.
    std::map<int, EmulatedNode> nodes_;
    std::map<std::string, int> connectors_;
    std::optional<std::string> backlightPath_;
    // Gone with this object, for what is posted.
    std::shared_ptr<bool> isThere_ = std::make_shared<bool>(true);
    Testbed testbed_;
};

}  // namespace vantrel::test
