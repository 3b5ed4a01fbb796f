// Owns the tasks that were started for something and ends them with it.
//
// Main thread. Destroying the scope destroys every task that has not finished,
// at its current suspension; it must not be done from inside one of them.
#pragma once

#include <cstddef>
#include <list>
#include <memory>

#include "runtime/MainLoop.h"
#include "runtime/Task.h"

namespace vantrel::runtime {

// Names a started task; does not own it. Valid for ever.
class TaskHandle {
  public:
    TaskHandle() = default;

    // Asks the task to stop: a sleep in progress ends at once, later ones do not
    // sleep. The task goes on running and has to look at the answer.
    void cancel() const;
    bool isRunning() const { return !state_.expired(); }

  private:
    friend class TaskScope;
    explicit TaskHandle(std::weak_ptr<Cancellation> state) : state_(std::move(state)) {}
    std::weak_ptr<Cancellation> state_;
};

class TaskScope {
  public:
    explicit TaskScope(MainLoop& loop);
    TaskScope(const TaskScope&) = delete;
    TaskScope& operator=(const TaskScope&) = delete;
    ~TaskScope();

    // The task begins in a later pass of the main loop.
    TaskHandle start(Task<void> task);
    // Tasks that have not finished.
    std::size_t running() const;

  private:
    struct Entry;

    void begin(Entry& entry);
    void remove(const Entry& entry);

    MainLoop& loop_;
    std::list<std::unique_ptr<Entry>> entries_;
};

}  // namespace vantrel::runtime
