// A Linux computer whose kernel is emulated, with the program's platform on it: everything
// of the kernel's is met through device files, sysfs and udev. What the desktop and the
// session do is in memory.
//
// Time is the scheduler's. Events arrive when the computer runs, not by themselves.
// Threads: main thread. Lifetime: scheduler and loop outlive it; no thread of the
// scheduler's is left when it goes.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "linux/FakeDesktop.h"
#include "linux/FakeGuard.h"
#include "linux/FakeSession.h"
#include "linux/SharedDefaults.h"
#include "linux/kernel/EmulatedKernel.h"
#include "linux/kernel/PolledDescriptors.h"
#include "platform/EnglishLocalizer.h"
#include "platform/MemoryDefaults.h"
#include "platform/linux/KernelI2C.h"
#include "platform/linux/KernelNodes.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/OutputMatch.h"
#include "platform/linux/UdevEvents.h"
#include "platform/simulated/SimulatedLoginItem.h"
#include "support/RecordingLogSink.h"

namespace vantrel::linux {

class KernelComputer {
  public:
    using BusTime = test::EmulatedKernel::BusTime;

    KernelComputer(const simulated::Desk& desk, runtime::Scheduler& scheduler, runtime::MainLoop& loop,
                   BusTime busTime)
        : kernel(asFarAsLinuxCan(desk), loop, scheduler, busTime), scheduler_(scheduler), loop_(loop) {
        desktop.switches = has(desk, "CGSConfigureDisplayEnabled");
        // The backlight is the kernel's, too.
        session.refuses = true;
        for (const simulated::DisplayPlan& plan : desk.displays) addOutput(plan);
        const LinuxPlatform::Parts parts{sysfs,  devices, nodes,    events,    session,  desktop,
                                         memory, guard,   defaults, localizer, loginItem};
        linux.emplace(parts, log, scheduler, loop);
    }
    KernelComputer(const KernelComputer&) = delete;
    KernelComputer& operator=(const KernelComputer&) = delete;
    ~KernelComputer() { scheduler_.finishThreads(); }

    void runFor(runtime::MonotonicClock::duration duration) {
        const runtime::MonotonicTime end = scheduler_.now() + duration;
        while (scheduler_.now() < end) {
            descriptors.deliver();
            loop_.runFor(std::min<runtime::MonotonicClock::duration>(step, end - scheduler_.now()));
        }
    }
    // A minute at the most; whether it came true.
    bool runUntil(const std::function<bool()>& isTrue) {
        const runtime::MonotonicTime end = scheduler_.now() + std::chrono::minutes(1);
        while (!isTrue() && scheduler_.now() < end) runFor(step);
        return isTrue();
    }

    // Cables.
    void plug(platform::DisplayID display) {
        kernel.plug(display);
        const auto& block = kernel.bus(display).edid();
        desktop.plug(output(display), {block->begin(), block->end()});
    }
    void unplug(platform::DisplayID display) {
        kernel.unplug(display);
        desktop.unplug(output(display));
    }

    test::EmulatedKernel kernel;
    test::PolledDescriptors descriptors;
    FakeDesktop desktop;
    FakeSession session;
    FakeGuard guard;
    SharedDefaults sessionDefaults;
    SessionMemory memory{sessionDefaults.open(), desktop.identity()};
    platform::MemoryDefaults defaults;
    platform::EnglishLocalizer localizer;
    simulated::SimulatedLoginItem loginItem;
    test::RecordingLogSink log;
    const Sysfs sysfs;
    KernelI2C devices;
    KernelNodes nodes;
    UdevEvents events{descriptors};
    // Made by the constructor, when everything else is there.
    std::optional<LinuxPlatform> linux;

  private:
    static bool has(const simulated::Desk& desk, const char* symbol) {
        return std::ranges::count(desk.missingSymbols, symbol) == 0;
    }
    // What a system lacks, its hardware does.
    static simulated::Desk asFarAsLinuxCan(simulated::Desk desk) {
        for (simulated::DisplayPlan& plan : desk.displays) {
            if (!has(desk, "IOAVServiceCreateWithService")) plan.monitor.reset();
            if (!has(desk, "DisplayServicesGetBrightness")) plan.brightness.reset();
        }
        return desk;
    }
    // The desktop's name of the display's connector.
    std::string output(platform::DisplayID display) const {
        return OutputMatch::shortName(kernel.connector(display).substr(std::string("card0-").size()));
    }
    void addOutput(const simulated::DisplayPlan& plan) {
        const test::EDIDBlock& block = *kernel.bus(plan.id).edid();
        Desktop::Output added = FakeDesktop::outputOf(output(plan.id), {block.begin(), block.end()});
        if (!plan.isConnected) added.edid.clear();
        added.isConnected = added.isLit = plan.isConnected;
        added.tableCapacity = plan.transferTableCapacity;
        desktop.add(added);
    }

    static constexpr std::chrono::milliseconds step{20};

    runtime::Scheduler& scheduler_;
    runtime::MainLoop& loop_;
};

}  // namespace vantrel::linux
