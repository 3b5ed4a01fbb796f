// The only way to read a clock or to sleep. Threads: any.
#pragma once

#include "runtime/Time.h"

namespace vantrel::runtime {

class Clock {
  public:
    virtual ~Clock() = default;
    virtual MonotonicTime now() const = 0;
    virtual WallTime wallNow() const = 0;
    // Blocks the calling thread for at least `duration` of monotonic time.
    // Never call it while holding a lock.
    virtual void sleepFor(MonotonicClock::duration duration) = 0;
};

}  // namespace vantrel::runtime
