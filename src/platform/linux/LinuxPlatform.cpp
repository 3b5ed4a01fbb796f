#include "platform/linux/LinuxPlatform.h"

namespace vantrel::linux {

LinuxPlatform::LinuxPlatform(const Parts& parts, platform::LogSink& sink, runtime::Scheduler& scheduler,
                             runtime::MainLoop& mainLoop)
    : parts_(parts),
      log_(sink),
      scheduler_(scheduler),
      mainLoop_(mainLoop),
      buses_(parts.devices, scheduler),
      inventory_(parts.sysfs, buses_),
      services_(inventory_, buses_, answers_),
      registry_(inventory_, services_),
      outputs_(parts.desktop, parts.session, parts.memory, &parts.guard, log_),
      tables_(parts.desktop, parts.memory),
      displays_({inventory_, parts.desktop, parts.events, parts.session, outputs_, tables_, registry_},
                mainLoop),
      backlight_(parts.sysfs, parts.session),
      libraries_(displays_, services_, backlight_,
                 parts.desktop.canSwitch() ? LinuxLibraries::Switching::possible
                                           : LinuxLibraries::Switching::missing),
      workspace_(parts.session),
      obstacles_(inventory_, displays_, answers_, parts.nodes, parts.desktop) {}

LinuxPlatform::~LinuxPlatform() { tables_.restoreOwn(); }

platform::Platform LinuxPlatform::platform() {
    return {scheduler_,      mainLoop_,  displays_,        registry_,        functions_, baseTables_,
            parts_.defaults, workspace_, parts_.localizer, parts_.loginItem, obstacles_, log_};
}

}  // namespace vantrel::linux
