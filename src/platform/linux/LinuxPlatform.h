// A Linux desktop, behind the seam: the kernel's connectors and I2C buses, and what the
// desktop that the user is logged in to does with the outputs.
//
// The program's vocabulary is the Mac's, and so are the names of the private functions; what
// they do is done here by other means.
// Threads: main thread; what `platform` hands out keeps the seam's own rules.
// Lifetime: one at a time. Scheduler, loop and everything in Parts outlive it; it outlives
// everything that uses its platform, so finish the scheduler's threads before it goes. When it
// goes, the transfer tables that it set are what they were before.
#pragma once

#include "platform/Platform.h"
#include "platform/linux/AVServices.h"
#include "platform/linux/AnswerLog.h"
#include "platform/linux/Backlight.h"
#include "platform/linux/BoundedI2C.h"
#include "platform/linux/Desktop.h"
#include "platform/linux/DeviceEvents.h"
#include "platform/linux/DeviceNodes.h"
#include "platform/linux/Inventory.h"
#include "platform/linux/LinuxDisplayServices.h"
#include "platform/linux/LinuxLibraries.h"
#include "platform/linux/LinuxObstacles.h"
#include "platform/linux/LinuxRegistry.h"
#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/OutputGuard.h"
#include "platform/linux/OutputSwitch.h"
#include "platform/linux/Session.h"
#include "platform/linux/SessionMemory.h"
#include "platform/linux/Sysfs.h"
#include "platform/linux/TransferTables.h"

namespace vantrel::linux {

class LinuxPlatform {
  public:
    struct Parts {
        const Sysfs& sysfs;
        I2CDevices& devices;
        DeviceNodes& nodes;
        DeviceEvents& events;
        Session& session;
        Desktop& desktop;
        SessionMemory& memory;
        OutputGuard& guard;
        platform::Defaults& defaults;
        platform::Localizer& localizer;
        platform::LoginItem& loginItem;
    };

    LinuxPlatform(const Parts& parts, platform::LogSink& sink, runtime::Scheduler& scheduler,
                  runtime::MainLoop& mainLoop);
    LinuxPlatform(const LinuxPlatform&) = delete;
    LinuxPlatform& operator=(const LinuxPlatform&) = delete;
    ~LinuxPlatform();

    platform::Platform platform();

    // What the program has taken and not given back.
    std::size_t liveServices() const { return services_.live(); }

  private:
    Parts parts_;
    platform::Log log_;
    runtime::Scheduler& scheduler_;
    runtime::MainLoop& mainLoop_;
    BoundedI2C buses_;
    Inventory inventory_;
    AnswerLog answers_;
    AVServices services_;
    LinuxRegistry registry_;
    OutputSwitch outputs_;
    TransferTables tables_;
    LinuxDisplayServices displays_;
    Backlight backlight_;
    LinuxLibraries libraries_;
    platform::PrivateFunctions functions_{libraries_};
    platform::BaseTables baseTables_{displays_};
    LinuxWorkspace workspace_;
    LinuxObstacles obstacles_;
};

}  // namespace vantrel::linux
