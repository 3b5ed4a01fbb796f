// A long operation on the main thread, written as a coroutine: it does nothing
// until it is awaited by another task or started in a TaskScope, suspends at
// its awaits, and is resumed on the main loop only.
//
// Ownership: a Task owns its frame; destroying it ends the operation where it
// is suspended and with it whatever it awaits. Never destroy one from inside.
// Parameters are kept in the frame, so take values, not references that may die.
// Errors: an exception that leaves a task stops the program.
#pragma once

#include <coroutine>
#include <exception>
#include <functional>
#include <optional>
#include <utility>

#include "runtime/Cancellation.h"

namespace vantrel::runtime {

template <class T = void>
class Task;

namespace detail {

class TaskPromiseBase {
  public:
    struct FinalAwaiter {
        bool await_ready() const noexcept { return false; }
        template <class Promise>
        std::coroutine_handle<> await_suspend(std::coroutine_handle<Promise> task) const noexcept {
            TaskPromiseBase& promise = task.promise();
            if (promise.onFinished) promise.onFinished();
            return promise.continuation ? promise.continuation : std::noop_coroutine();
        }
        void await_resume() const noexcept {}
    };

    std::suspend_always initial_suspend() const noexcept { return {}; }
    FinalAwaiter final_suspend() const noexcept { return {}; }
    void unhandled_exception() const noexcept { std::terminate(); }

    std::coroutine_handle<> continuation;
    Cancellation* cancellation = nullptr;
    std::function<void()> onFinished;
};

template <class T>
class TaskPromise : public TaskPromiseBase {
  public:
    Task<T> get_return_object();
    template <class U>
    void return_value(U&& value) {
        result_.emplace(std::forward<U>(value));
    }
    T takeResult() { return std::move(*result_); }

  private:
    std::optional<T> result_;
};

template <>
class TaskPromise<void> : public TaskPromiseBase {
  public:
    Task<void> get_return_object();
    void return_void() const noexcept {}
    void takeResult() const noexcept {}
};

}  // namespace detail

template <class T>
class [[nodiscard]] Task {
  public:
    using promise_type = detail::TaskPromise<T>;

    Task(Task&& other) noexcept : frame_(std::exchange(other.frame_, nullptr)) {}
    Task& operator=(Task&& other) noexcept {
        std::swap(frame_, other.frame_);
        return *this;
    }
    ~Task() {
        if (frame_) frame_.destroy();
    }

    struct Awaiter {
        std::coroutine_handle<promise_type> frame;

        bool await_ready() const noexcept { return false; }
        template <class Parent>
        std::coroutine_handle<> await_suspend(std::coroutine_handle<Parent> parent) noexcept {
            frame.promise().continuation = parent;
            frame.promise().cancellation = parent.promise().cancellation;
            return frame;
        }
        T await_resume() { return frame.promise().takeResult(); }
    };
    Awaiter operator co_await() && noexcept { return Awaiter{frame_}; }
    Awaiter operator co_await() & noexcept { return Awaiter{frame_}; }

  private:
    friend class TaskScope;
    friend promise_type;
    explicit Task(std::coroutine_handle<promise_type> frame) noexcept : frame_(frame) {}

    std::coroutine_handle<promise_type> frame_;
};

namespace detail {

template <class T>
Task<T> TaskPromise<T>::get_return_object() {
    return Task<T>(std::coroutine_handle<TaskPromise>::from_promise(*this));
}

inline Task<void> TaskPromise<void>::get_return_object() {
    return Task<void>(std::coroutine_handle<TaskPromise>::from_promise(*this));
}

}  // namespace detail

}  // namespace vantrel::runtime
