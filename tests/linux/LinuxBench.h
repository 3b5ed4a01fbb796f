// A Linux desktop in virtual time with a simulated desk of monitors.
#pragma once

#include <optional>
#include <utility>

#include "linux/LinuxHardware.h"
#include "linux/SharedDefaults.h"
#include "platform/EnglishLocalizer.h"
#include "platform/MemoryDefaults.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/simulated/SimulatedLoginItem.h"
#include "platform/simulated/VirtualTime.h"
#include "support/RecordingLogSink.h"
#include "support/TestDesks.h"

namespace vantrel::linux {

class LinuxBench {
  public:
    explicit LinuxBench(const simulated::Desk& desk = test::usualDesk()) : hardware(desk, time) {}
    LinuxBench(const LinuxBench&) = delete;
    LinuxBench& operator=(const LinuxBench&) = delete;
    ~LinuxBench() { time.finishThreads(); }

    // What the platform calls the display at this place of the desk's; of equal ones that
    // are online, the first. Nothing while it isn't online.
    std::optional<platform::DisplayID> id(platform::DisplayID display) {
        const auto edid = EDID::read(hardware.place(display).edid);
        for (const platform::DisplayID online : platform.displays.onlineDisplays()) {
            if (platform.displays.vendorNumber(online) == edid->vendor &&
                platform.displays.modelNumber(online) == edid->product &&
                platform.displays.serialNumber(online) == edid->serial) {
                return online;
            }
        }
        return std::nullopt;
    }

    simulated::VirtualTime time;
    runtime::MainLoop loop{time};
    LinuxHardware hardware;
    SharedDefaults sessionDefaults;
    SessionMemory memory{sessionDefaults.open(), hardware.desktop.identity()};
    platform::MemoryDefaults defaults;
    platform::EnglishLocalizer localizer;
    simulated::SimulatedLoginItem loginItem;
    test::RecordingLogSink log;
    const LinuxPlatform::Parts parts{hardware.sysfs,   hardware.devices, hardware.nodes, hardware.events,
                                     hardware.session, hardware.desktop, memory,         hardware.guard,
                                     defaults,         localizer,        loginItem};
    // May end before the rest; nothing of `platform` may be used then.
    std::optional<LinuxPlatform> linux{std::in_place, parts, log, time, loop};
    platform::Platform platform = linux->platform();
};

}  // namespace vantrel::linux
