// Awaitable sleep of a task on the monotonic clock.
//
//     const Slept slept = co_await sleep(loop, 600ms);
//     if (slept == Slept::cancelled) co_return;
#pragma once

#include <coroutine>

#include "runtime/Cancellation.h"
#include "runtime/MainLoop.h"

namespace vantrel::runtime {

enum class Slept { fully, cancelled };

class [[nodiscard]] SleepAwaiter final : CancellableWait {
  public:
    SleepAwaiter(MainLoop& loop, MonotonicClock::duration duration) : loop_(loop), duration_(duration) {}
    SleepAwaiter(const SleepAwaiter&) = delete;
    SleepAwaiter& operator=(const SleepAwaiter&) = delete;
    ~SleepAwaiter() { stopWaiting(); }

    bool await_ready() const noexcept { return false; }

    template <class Promise>
    bool await_suspend(std::coroutine_handle<Promise> task) {
        cancellation_ = task.promise().cancellation;
        if (cancellation_ != nullptr && cancellation_->isRequested()) {
            slept_ = Slept::cancelled;
            return false;
        }
        if (cancellation_ != nullptr) cancellation_->setWait(this);
        task_ = task;
        timer_ = loop_.after(duration_, [this] { resume(); });
        return true;
    }

    Slept await_resume() const noexcept { return slept_; }

  private:
    void cancelled() override {
        slept_ = Slept::cancelled;
        loop_.cancel(timer_);
        timer_ = loop_.post([this] { resume(); });
    }

    void resume() {
        stopWaiting();
        task_.resume();
    }

    void stopWaiting() {
        if (!task_) return;
        loop_.cancel(timer_);
        if (cancellation_ != nullptr) cancellation_->setWait(nullptr);
    }

    MainLoop& loop_;
    MonotonicClock::duration duration_;
    std::coroutine_handle<> task_;
    Cancellation* cancellation_ = nullptr;
    MainLoop::TimerID timer_ = 0;
    Slept slept_ = Slept::fully;
};

inline SleepAwaiter sleep(MainLoop& loop, MonotonicClock::duration duration) { return {loop, duration}; }

// Whether the awaiting task was asked to stop.
class [[nodiscard]] IsCancelled {
  public:
    bool await_ready() const noexcept { return false; }
    template <class Promise>
    bool await_suspend(std::coroutine_handle<Promise> task) noexcept {
        const Cancellation* cancellation = task.promise().cancellation;
        isCancelled_ = cancellation != nullptr && cancellation->isRequested();
        return false;
    }
    bool await_resume() const noexcept { return isCancelled_; }

  private:
    bool isCancelled_ = false;
};

}  // namespace vantrel::runtime
