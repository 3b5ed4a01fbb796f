// The Mac, behind the seam.
//
//     runtime::RealScheduler real;
//     MacScheduler scheduler(real);
//     runtime::MainLoop loop(scheduler);
//     MacPlatform mac(scheduler, loop);
//     const platform::Platform platform = mac.platform();
//
// Threads: main thread; what `platform` hands out keeps the seam's own rules.
// Lifetime: scheduler and loop outlive it; it outlives everything that uses its
// platform, so finish the scheduler's threads before it goes.
#pragma once

#include "platform/Platform.h"
#include "platform/macos/MacDefaults.h"
#include "platform/macos/MacDisplayServices.h"
#include "platform/macos/MacLocalizer.h"
#include "platform/macos/MacLog.h"
#include "platform/macos/MacLoginItem.h"
#include "platform/macos/MacRegistry.h"
#include "platform/macos/MacSymbolLoader.h"
#include "platform/macos/MacWorkspace.h"

namespace vantrel::macos {

class MacPlatform {
  public:
    MacPlatform(runtime::Scheduler& scheduler, runtime::MainLoop& mainLoop);
    MacPlatform(const MacPlatform&) = delete;
    MacPlatform& operator=(const MacPlatform&) = delete;

    // With the system's log and the user's settings, or with others. Sink and
    // settings must outlive what it returns.
    platform::Platform platform() { return platform(log_, defaults_); }
    platform::Platform platform(platform::LogSink& sink) { return platform(sink, defaults_); }
    platform::Platform platform(platform::LogSink& sink, platform::Defaults& defaults);
    // The system's, for a sink that passes lines on.
    platform::LogSink& log() { return log_; }

  private:
    runtime::Scheduler& scheduler_;
    runtime::MainLoop& mainLoop_;
    MacLog log_;
    MacDisplayServices displays_;
    MacRegistry registry_;
    MacSymbolLoader libraries_;
    platform::PrivateFunctions functions_{libraries_};
    platform::BaseTables baseTables_{displays_};
    MacDefaults defaults_{platform::Log(log_)};
    MacWorkspace workspace_;
    MacLocalizer localizer_;
    MacLoginItem loginItem_;
    platform::NoObstacles obstacles_;
};

}  // namespace vantrel::macos
