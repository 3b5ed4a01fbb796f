// Awaitable call of a blocking function on a serial queue: the task suspends,
// the function runs on the queue's thread, the task resumes on the main loop
// with its result.
//
// If the task is destroyed meanwhile, the function still runs; its result is
// dropped. A request to cancel does not cut a call short.
#pragma once

#include <coroutine>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "runtime/MainLoop.h"
#include "runtime/SerialQueue.h"

namespace vantrel::runtime {

template <class Result>
class [[nodiscard]] QueueCall {
  public:
    QueueCall(SerialQueue& queue, MainLoop::Poster loop, std::function<Result()> function)
        : queue_(queue), loop_(std::move(loop)), function_(std::move(function)) {}
    QueueCall(const QueueCall&) = delete;
    QueueCall& operator=(const QueueCall&) = delete;
    ~QueueCall() {
        if (call_) call_->task = nullptr;
    }

    bool await_ready() const noexcept { return false; }

    void await_suspend(std::coroutine_handle<> task) {
        call_ = std::make_shared<Call>();
        call_->task = task;
        queue_.submit([call = call_, loop = loop_, function = std::move(function_)] {
            call->result.emplace(function());
            loop.post([call] {
                if (call->task) call->task.resume();
            });
        });
    }

    Result await_resume() { return std::move(*call_->result); }

  private:
    // The queue's thread writes `result` before it posts; the main loop reads it
    // after. `task` belongs to the main loop.
    struct Call {
        std::optional<Result> result;
        std::coroutine_handle<> task;
    };

    SerialQueue& queue_;
    MainLoop::Poster loop_;
    std::function<Result()> function_;
    std::shared_ptr<Call> call_;
};

}  // namespace vantrel::runtime
