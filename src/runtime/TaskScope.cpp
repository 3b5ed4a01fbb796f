#include "runtime/TaskScope.h"

#include <algorithm>
#include <utility>

namespace vantrel::runtime {

struct TaskScope::Entry {
    explicit Entry(Task<void> started) : task(std::move(started)) {}

    // Outlives the frame, whose awaits point to it. Null once the task finished.
    std::shared_ptr<Cancellation> cancellation = std::make_shared<Cancellation>();
    Task<void> task;
    MainLoop::TimerID step = 0;
};

void TaskHandle::cancel() const {
    if (const auto cancellation = state_.lock()) cancellation->request();
}

TaskScope::TaskScope(MainLoop& loop) : loop_(loop) {}

TaskScope::~TaskScope() {
    for (const auto& entry : entries_) loop_.cancel(entry->step);
}

TaskHandle TaskScope::start(Task<void> task) {
    Entry& entry = *entries_.emplace_back(std::make_unique<Entry>(std::move(task)));
    entry.step = loop_.post([this, &entry] { begin(entry); });
    return TaskHandle(entry.cancellation);
}

void TaskScope::begin(Entry& entry) {
    auto& promise = entry.task.frame_.promise();
    promise.cancellation = entry.cancellation.get();
    // The frame is still in use when a task finishes, so it goes in a later pass.
    promise.onFinished = [this, &entry] {
        entry.step = loop_.post([this, &entry] { remove(entry); });
        entry.cancellation.reset();
    };
    entry.task.frame_.resume();
}

void TaskScope::remove(const Entry& entry) {
    std::erase_if(entries_, [&entry](const auto& candidate) { return candidate.get() == &entry; });
}

std::size_t TaskScope::running() const {
    return static_cast<std::size_t>(std::count_if(
        entries_.begin(), entries_.end(), [](const auto& entry) { return entry->cancellation != nullptr; }));
}

}  // namespace vantrel::runtime
