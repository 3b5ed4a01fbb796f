#include "runtime/MainLoop.h"

#include <mutex>
#include <vector>

namespace vantrel::runtime {

struct MainLoop::Inbox {
    std::mutex mutex;
    std::vector<Work> posted;
    bool closed = false;
    std::unique_ptr<Gate> gate;
};

void MainLoop::Poster::post(Work work) const {
    {
        const std::lock_guard lock(inbox_->mutex);
        if (inbox_->closed) return;
        inbox_->posted.push_back(std::move(work));
    }
    inbox_->gate->open();
}

MainLoop::MainLoop(Scheduler& scheduler) : scheduler_(scheduler), inbox_(std::make_shared<Inbox>()) {
    inbox_->gate = scheduler.makeGate();
}

MainLoop::~MainLoop() {
    std::vector<Work> dropped;
    {
        const std::lock_guard lock(inbox_->mutex);
        inbox_->closed = true;
        dropped.swap(inbox_->posted);
    }
    dropped.clear();
    // What the work holds may still post and cancel while it is destroyed.
    while (!due_.empty()) {
        const auto doomed = std::exchange(due_, {});
        times_.clear();
    }
}

MainLoop::TimerID MainLoop::post(Work work) { return add(scheduler_.now(), std::move(work)); }

MainLoop::TimerID MainLoop::after(MonotonicClock::duration delay, Work work) {
    return add(scheduler_.now() + delay, std::move(work));
}

MainLoop::TimerID MainLoop::add(MonotonicTime due, Work work) {
    takeInbox();
    const TimerID timer = nextID_++;
    due_.emplace(Key(due, timer), std::move(work));
    times_.emplace(timer, due);
    return timer;
}

void MainLoop::cancel(TimerID timer) {
    const auto found = times_.find(timer);
    if (found == times_.end()) return;
    // Destroyed last: what the work holds may post and cancel.
    const auto doomed = due_.extract(Key(found->second, timer));
    times_.erase(found);
}

// Work from other threads takes its place in the order when it is first seen.
void MainLoop::takeInbox() {
    std::vector<Work> posted;
    {
        const std::lock_guard lock(inbox_->mutex);
        posted.swap(inbox_->posted);
    }
    for (Work& work : posted) {
        const TimerID timer = nextID_++;
        due_.emplace(Key(scheduler_.now(), timer), std::move(work));
        times_.emplace(timer, scheduler_.now());
    }
}

void MainLoop::runDue() { runPass(); }

bool MainLoop::runPass() {
    takeInbox();
    const MonotonicTime now = scheduler_.now();
    const TimerID firstOfNextPass = nextID_;
    for (auto next = due_.begin(); next != due_.end() && next->first.first <= now && !quitting_;) {
        if (next->first.second >= firstOfNextPass) {
            ++next;
            continue;
        }
        {
            const Work work = std::move(next->second);
            times_.erase(next->first.second);
            due_.erase(next);
            work();
        }
        // Only now: what the work held may have cancelled while it was destroyed.
        next = due_.begin();
    }
    // A quit ends one pass and the run around it, nothing later.
    return !std::exchange(quitting_, false);
}

std::optional<MonotonicTime> MainLoop::nextDue() const {
    {
        const std::lock_guard lock(inbox_->mutex);
        if (!inbox_->posted.empty()) return scheduler_.now();
    }
    if (due_.empty()) return std::nullopt;
    return due_.begin()->first.first;
}

void MainLoop::run() {
    quitting_ = false;
    for (;;) {
        if (!runPass()) return;
        const std::optional<MonotonicTime> due = nextDue();
        if (due && *due <= scheduler_.now()) continue;
        if (inbox_->gate->wait(due) == Wake::idle) return;
    }
}

void MainLoop::runFor(MonotonicClock::duration duration) {
    const TimerID end = after(duration, [this] { quit(); });
    run();
    cancel(end);
}

}  // namespace vantrel::runtime
