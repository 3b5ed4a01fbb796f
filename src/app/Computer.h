// What the program runs on: this computer with the monitors on its desk, or a
// simulated one.
// Threads: main thread.
#pragma once

#include "platform/Platform.h"

namespace vantrel::app {

class Computer {
  public:
    virtual ~Computer() = default;
    // Where its system keeps log lines; null when it keeps none.
    virtual platform::LogSink* systemLog() = 0;
    // Once. The computer outlives everything that uses the platform, and the log the
    // computer, which may have something to say when it goes.
    virtual platform::Platform platform(platform::LogSink& log) = 0;
};

}  // namespace vantrel::app
