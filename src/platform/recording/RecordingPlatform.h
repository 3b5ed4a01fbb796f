// A platform for the program that is another one, disguised and recorded.
//
//     RecordingPlatform recorder(computer.platform(log));
//     platform::Platform platform = recorder.platform();
//     (whatever is to be recorded)
//     recorder.recording()
//
// Threads: main thread; what `platform` hands out keeps the seam's own rules.
// Lifetime: one at a time. The real platform outlives it; it outlives everything that
// uses its own.
#pragma once

#include "platform/Platform.h"
#include "platform/recording/DisguisedDisplayServices.h"
#include "platform/recording/RecordingLibraries.h"
#include "platform/recording/RecordingRegistry.h"

namespace vantrel::recording {

class RecordingPlatform {
  public:
    explicit RecordingPlatform(const platform::Platform& real)
        : real_(real),
          recording_(real.scheduler),
          displays_(real.displays, disguise_),
          registry_(real.registry, disguise_, recording_),
          libraries_(real.functions, recording_),
          functions_(libraries_) {}

    platform::Platform platform() {
        return {real_.scheduler, real_.mainLoop,   displays_,       registry_,
                functions_,      real_.baseTables, real_.defaults,  real_.workspace,
                real_.localizer, real_.loginItem,  real_.obstacles, real_.log};
    }
    const Recording& recording() const { return recording_; }

  private:
    platform::Platform real_;
    Disguise disguise_;
    Recording recording_;
    DisguisedDisplayServices displays_;
    RecordingRegistry registry_;
    RecordingLibraries libraries_;
    platform::PrivateFunctions functions_;
};

}  // namespace vantrel::recording
