// The main thread's list of things to do: posted work and timers. Everything
// that touches a model or a view runs here.
//
// Order: work and timers that are due run by due time, equal times in the order
// in which they were registered; posted work is due at once.
// Threads: all of it on the main thread, except Poster.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "runtime/Scheduler.h"

namespace vantrel::runtime {

class MainLoop {
    struct Inbox;

  public:
    using Work = std::function<void()>;

    // Hands work to the loop from any thread. May outlive the loop; what is
    // posted then is dropped.
    class Poster {
      public:
        void post(Work work) const;

      private:
        friend class MainLoop;
        explicit Poster(std::shared_ptr<Inbox> inbox) : inbox_(std::move(inbox)) {}
        std::shared_ptr<Inbox> inbox_;
    };

    // Names one timer; never reused.
    using TimerID = std::uint64_t;

    explicit MainLoop(Scheduler& scheduler);
    MainLoop(const MainLoop&) = delete;
    MainLoop& operator=(const MainLoop&) = delete;
    ~MainLoop();

    Poster poster() const { return Poster(inbox_); }
    // Runs `work` in a later pass, after what is due already.
    TimerID post(Work work);
    TimerID after(MonotonicClock::duration delay, Work work);
    // Does nothing when the timer has fired or was cancelled.
    void cancel(TimerID timer);

    // Runs passes until quit(), or, in virtual time, until nothing is left to
    // happen. Waits without using the processor.
    void run();
    // run() for `duration` of monotonic time at the most.
    void runFor(MonotonicClock::duration duration);
    // Ends the innermost run() after the work that calls it; the rest stays due.
    void quit() { quitting_ = true; }

    // One pass: what is due now, but not what that makes due.
    void runDue();
    // When the next pass is needed, if at all.
    std::optional<MonotonicTime> nextDue() const;

  private:
    using Key = std::pair<MonotonicTime, TimerID>;

    void takeInbox();
    // False when quit() ended it.
    bool runPass();
    TimerID add(MonotonicTime due, Work work);

    Scheduler& scheduler_;
    std::shared_ptr<Inbox> inbox_;
    std::map<Key, Work> due_;
    std::map<TimerID, MonotonicTime> times_;
    TimerID nextID_ = 1;
    bool quitting_ = false;
};

}  // namespace vantrel::runtime
