// A monitor's own time: the program's, and what its bus has been busy.
//
// The monitors of an emulated kernel are asked on one thread for all buses, which must
// not sleep: in virtual time it can't, and in real time the other buses would wait. So
// sleepFor() returns at once, and the time is
// - added up, for good, where the program's time stands still during a transfer: to the
//   monitor its bus has been busy, and to the program the transfer took no time at all.
//   What lies between two transfers of a monitor is as long for both;
// - owed, where the program's time passes: busyUntil() says until when its caller has to
//   be kept waiting, and the monitor's time stands still until then.
//
// Threads: any.
#pragma once

#include <algorithm>
#include <mutex>

#include "runtime/Clock.h"

namespace vantrel::test {

class BusClock final : public runtime::Clock {
  public:
    enum class BusTime { addsUp, isOwed };

    // The clock must outlive it.
    BusClock(runtime::Clock& clock, BusTime busTime) : clock_(clock), busTime_(busTime) {}

    runtime::MonotonicTime now() const override {
        const std::lock_guard lock(mutex_);
        return unlockedNow();
    }
    runtime::WallTime wallNow() const override { return clock_.wallNow(); }
    void sleepFor(runtime::MonotonicClock::duration duration) override {
        const std::lock_guard lock(mutex_);
        if (busTime_ == BusTime::addsUp) {
            ahead_ += duration;
        } else {
            busyUntil_ = unlockedNow() + duration;
        }
    }

    // In the program's time; in the past when nothing is owed.
    runtime::MonotonicTime busyUntil() const {
        const std::lock_guard lock(mutex_);
        return busyUntil_;
    }

  private:
    runtime::MonotonicTime unlockedNow() const { return std::max(clock_.now() + ahead_, busyUntil_); }

    runtime::Clock& clock_;
    const BusTime busTime_;
    mutable std::mutex mutex_;
    runtime::MonotonicClock::duration ahead_{0};
    runtime::MonotonicTime busyUntil_{};
};

}  // namespace vantrel::test
