// The two clocks' points in time.
#pragma once

#include <chrono>

namespace vantrel::runtime {

// Never goes back; only differences mean anything. Sleeps and timers use it.
struct MonotonicClock {
    using duration = std::chrono::nanoseconds;
    using rep = duration::rep;
    using period = duration::period;
    using time_point = std::chrono::time_point<MonotonicClock>;
    static constexpr bool is_steady = true;
};
using MonotonicTime = MonotonicClock::time_point;

// The time of day, for time stamps that are compared across operations.
using WallTime = std::chrono::sys_time<std::chrono::microseconds>;

}  // namespace vantrel::runtime
