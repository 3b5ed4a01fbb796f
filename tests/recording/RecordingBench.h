// A simulated computer in virtual time, and a recording of what is done with it.
#pragma once

#include <utility>

#include "platform/recording/RecordingPlatform.h"
#include "simulated/DeskBench.h"

namespace vantrel::recording {

class RecordingBench {
  public:
    explicit RecordingBench(simulated::Desk desk = simulated::ordinaryDesk()) : real(std::move(desk)) {}

    simulated::DeskBench real;
    RecordingPlatform recorder{real.platform};
    platform::Platform platform = recorder.platform();
};

}  // namespace vantrel::recording
