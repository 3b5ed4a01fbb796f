// A clock that goes on by what is slept and never really sleeps. Threads: any.
#pragma once

#include <atomic>

#include "runtime/Clock.h"

namespace vantrel::test {

class SteppingClock final : public runtime::Clock {
  public:
    runtime::MonotonicTime now() const override {
        return runtime::MonotonicTime(runtime::MonotonicClock::duration(now_.load()));
    }
    runtime::WallTime wallNow() const override {
        return runtime::WallTime(
            std::chrono::duration_cast<std::chrono::microseconds>(now().time_since_epoch()));
    }
    void sleepFor(runtime::MonotonicClock::duration duration) override { now_ += duration.count(); }

  private:
    std::atomic<runtime::MonotonicClock::rep> now_ = 0;
};

}  // namespace vantrel::test
