// A simulated desk as a Linux computer has it: the monitors' EDIDs at its connectors,
// themselves at its I2C buses, a desktop that shows a picture on each. Monitors are on
// connectors that name their bus in each of the ways in turn ("DP-1", "HDMI-A-2", "DVI-D-3",
// "DP-4"); a built-in panel ("eDP-1") has a backlight.
#pragma once

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "linux/FakeDesktop.h"
#include "linux/FakeDeviceEvents.h"
#include "linux/FakeDeviceNodes.h"
#include "linux/FakeGuard.h"
#include "linux/FakeI2C.h"
#include "linux/FakeSession.h"
#include "linux/SysfsTree.h"
#include "linux/TestEDID.h"
#include "platform/linux/OutputMatch.h"
#include "platform/simulated/Desk.h"
#include "platform/simulated/Random.h"
#include "platform/simulated/SimulatedMonitor.h"
#include "runtime/Clock.h"

namespace vantrel::linux {

class LinuxHardware {
  public:
    // Where a display of the desk is.
    struct Place {
        // The kernel's and the desktop's names.
        std::string connector;
        std::string output;
        // Nothing where DDC/CI doesn't pass.
        std::optional<unsigned> bus;
        EDIDBytes edid;
    };

    // The clock outlives it.
    LinuxHardware(const simulated::Desk& desk, runtime::Clock& clock) : devices(clock) {
        const auto has = [&desk](const char* symbol) {
            return std::ranges::count(desk.missingSymbols, symbol) == 0;
        };
        desktop.switches = has("CGSConfigureDisplayEnabled");
        for (const simulated::DisplayPlan& plan : desk.displays) {
            addDisplay(plan);
            if (plan.monitor && has("IOAVServiceCreateWithService"))
                addMonitor(plan, simulated::Random(desk.seed), clock);
            if (plan.brightness && has("DisplayServicesGetBrightness")) {
                tree.addBacklight("intel_backlight", "raw",
                                  static_cast<std::uint64_t>(*plan.brightness * 1000), 1000);
            }
        }
    }

    // By the desk's number of the display.
    const Place& place(platform::DisplayID display) const { return places_.at(display); }
    simulated::SimulatedMonitor& monitor(platform::DisplayID display) { return *monitors_.at(display); }
    bool hasMonitor(platform::DisplayID display) const { return monitors_.contains(display); }

    // Cables. The desktop shows a picture on what is plugged in; nobody answers at the end of
    // a cable that isn't.
    void plug(platform::DisplayID display) {
        if (place(display).bus) devices.fail(*place(display).bus, 0);
        connect(display);
        desktop.plug(place(display).output, place(display).edid);
        events.announce();
    }
    void unplug(platform::DisplayID display) {
        if (place(display).bus) devices.fail(*place(display).bus, ENXIO);
        disconnect(display);
    }
    // A monitor that lets go of its hot-plug line for a moment. The desktop remembers what it
    // showed there; the line of I2C isn't concerned.
    void beginPulse(platform::DisplayID display) {
        wasLit_[display] = desktop.output(place(display).output).isLit;
        disconnect(display);
    }
    void endPulse(platform::DisplayID display) {
        connect(display);
        desktop.plug(place(display).output, place(display).edid, wasLit_[display]);
        events.announce();
    }
    // The driver of its bus is loaded again: the bus has another number.
    void renumber(platform::DisplayID display, unsigned bus) {
        unsigned& now = *places_.at(display).bus;
        tree.renumber(now, bus);
        devices.renumber(now, bus);
        now = bus;
    }
    // Two unplugged monitors change their places.
    void swap(platform::DisplayID one, platform::DisplayID other) {
        std::swap(places_.at(one), places_.at(other));
        std::swap(places_.at(one).edid, places_.at(other).edid);
        for (const platform::DisplayID display : {one, other}) {
            devices.putMonitor(*place(display).bus, monitor(display));
            devices.putEDID(*place(display).bus, place(display).edid);
        }
    }
    // Nothing gets through while the computer sleeps.
    void sleep() { failAll(EIO); }
    void wake() {
        failAll(0);
        for (auto& [display, monitor] : monitors_) monitor->wake();
        session.wake();
    }

    SysfsTree tree;
    const Sysfs sysfs = tree.sysfs();
    FakeI2C devices;
    FakeDesktop desktop{&tree};
    FakeSession session{&tree};
    FakeDeviceEvents events;
    FakeDeviceNodes nodes;
    FakeGuard guard;

  private:
    void connect(platform::DisplayID display) { tree.plug(place(display).connector, place(display).edid); }
    void disconnect(platform::DisplayID display) {
        tree.unplug(place(display).connector);
        desktop.unplug(place(display).output);
        events.announce();
    }
    void failAll(int error) {
        for (const auto& [display, place] : places_) {
            if (place.bus) devices.fail(*place.bus, error);
        }
    }
    void addDisplay(const simulated::DisplayPlan& plan) {
        constexpr std::array<const char*, 3> types{"DP-", "HDMI-A-", "DVI-D-"};
        const std::string name =
            plan.isBuiltIn ? "eDP-1" : types.at(externals_ % 3) + std::to_string(externals_ + 1);
        if (!plan.isBuiltIn) ++externals_;
        const EDIDBytes edid = edidOf(plan.vendor, plan.product, plan.serial, plan.name.substr(0, 13));
        const Place place{"card0-" + name, OutputMatch::shortName(name), std::nullopt, edid};
        places_[plan.id] = place;
        tree.addConnector(place.connector);
        if (plan.isConnected) tree.plug(place.connector, edid);
        Desktop::Output output = FakeDesktop::outputOf(place.output, plan.isConnected ? edid : EDIDBytes());
        output.isConnected = output.isLit = plan.isConnected;
        output.tableCapacity = plan.transferTableCapacity;
        desktop.add(output, place.connector);
    }
    void addMonitor(const simulated::DisplayPlan& plan, const simulated::Random& random,
                    runtime::Clock& clock) {
        constexpr std::array wirings{SysfsTree::Wiring::child, SysfsTree::Wiring::link,
                                     SysfsTree::Wiring::none};
        const unsigned bus = 3 + static_cast<unsigned>(monitors_.size());
        Place& place = places_.at(plan.id);
        place.bus = bus;
        tree.addAdapter(bus, place.connector, wirings.at((externals_ + 2) % 3));
        auto& monitor = monitors_[plan.id];
        monitor = std::make_unique<simulated::SimulatedMonitor>(*plan.monitor, random.fork(plan.id), clock);
        devices.putMonitor(bus, *monitor);
        devices.putEDID(bus, place.edid);
    }

    unsigned externals_ = 0;
    std::map<platform::DisplayID, Place> places_;
    std::map<platform::DisplayID, bool> wasLit_;
    std::map<platform::DisplayID, std::unique_ptr<simulated::SimulatedMonitor>> monitors_;
};

}  // namespace vantrel::linux
