#include "platform/simulated/VirtualTime.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "runtime/Fatal.h"

namespace vantrel::simulated {

using runtime::MonotonicClock;
using runtime::MonotonicTime;
using runtime::Wake;

struct VirtualTime::Participant {
    std::string name;
    // Of a servant.
    std::function<void()> end;
    std::thread thread;
    std::thread::id id;
    std::condition_variable gotBaton;
    bool hasBaton = false;
    bool hasEnded = false;
    // Set while it waits and will be due; without one it waits for a gate.
    std::optional<MonotonicTime> due;
    std::uint64_t order = 0;
    Wake wake = Wake::deadline;
};

class VirtualTime::VirtualGate : public runtime::Gate {
  public:
    explicit VirtualGate(VirtualTime& time) : time_(time) {}

    void open() override {
        const std::lock_guard lock(time_.mutex_);
        if (waiting_ == nullptr) {
            isOpen_ = true;
            return;
        }
        Participant& participant = *std::exchange(waiting_, nullptr);
        participant.wake = Wake::opened;
        time_.makeDue(participant, time_.now_);
    }

    Wake wait(std::optional<MonotonicTime> deadline) override {
        std::unique_lock lock(time_.mutex_);
        if (std::exchange(isOpen_, false)) return Wake::opened;
        Participant& participant = time_.current();
        runtime::require(waiting_ == nullptr, "two threads wait at one gate");
        waiting_ = &participant;
        participant.wake = Wake::deadline;
        if (deadline) time_.makeDue(participant, *deadline);
        time_.pause(lock, participant);
        waiting_ = nullptr;
        return participant.wake;
    }

  private:
    VirtualTime& time_;
    Participant* waiting_ = nullptr;
    bool isOpen_ = false;
};

VirtualTime::VirtualTime(runtime::WallTime start) : start_(start) {
    main_ = participants_.emplace_back(std::make_unique<Participant>()).get();
    main_->name = "main";
    main_->id = std::this_thread::get_id();
    main_->hasBaton = true;
}

VirtualTime::~VirtualTime() { finishThreads(); }

MonotonicTime VirtualTime::now() const {
    const std::lock_guard lock(mutex_);
    return now_;
}

runtime::WallTime VirtualTime::wallNow() const {
    return start_ + std::chrono::duration_cast<std::chrono::microseconds>(now().time_since_epoch());
}

void VirtualTime::sleepFor(MonotonicClock::duration duration) {
    std::unique_lock lock(mutex_);
    Participant& participant = current();
    makeDue(participant, now_ + duration);
    pause(lock, participant);
}

std::unique_ptr<runtime::Gate> VirtualTime::makeGate() { return std::make_unique<VirtualGate>(*this); }

void VirtualTime::startThread(std::string name, runtime::QualityOfService, std::function<void()> body) {
    start(std::move(name), std::move(body), {});
}

void VirtualTime::startServant(std::string name, runtime::QualityOfService, std::function<void()> body,
                               std::function<void()> end) {
    start(std::move(name), std::move(body), std::move(end));
}

void VirtualTime::start(std::string name, std::function<void()> body, std::function<void()> end) {
    const std::lock_guard lock(mutex_);
    std::erase_if(participants_, [](const auto& participant) {
        if (!participant->hasEnded) return false;
        participant->thread.join();
        return true;
    });
    Participant& participant = *participants_.emplace_back(std::make_unique<Participant>());
    participant.name = std::move(name);
    participant.end = std::move(end);
    makeDue(participant, now_);
    participant.thread = std::thread([this, &participant, body = std::move(body)]() mutable {
        {
            std::unique_lock started(mutex_);
            participant.gotBaton.wait(started, [&participant] { return participant.hasBaton; });
        }
        body();
        body = nullptr;
        const std::lock_guard ending(mutex_);
        participant.hasEnded = true;
        participant.hasBaton = false;
        handOver();
    });
    participant.id = participant.thread.get_id();
}

void VirtualTime::finishThreads() {
    std::unique_lock lock(mutex_);
    finish(lock, [](const Participant& participant) { return !participant.end; });
    for (const auto& participant : participants_) {
        if (!participant->end) continue;
        lock.unlock();
        participant->end();
        lock.lock();
    }
    finish(lock, [](const Participant&) { return true; });
}

void VirtualTime::finish(std::unique_lock<std::mutex>& lock,
                         const std::function<bool(const Participant&)>& isMeant) {
    const auto isLeft = [this, &isMeant](const auto& participant) {
        return participant.get() != main_ && isMeant(*participant);
    };
    for (;;) {
        const auto found = std::find_if(participants_.rbegin(), participants_.rend(), isLeft);
        if (found == participants_.rend()) return;
        Participant& last = **found;
        if (!last.hasEnded) {
            // Everybody else goes first; idle means that the last one never will.
            main_->wake = Wake::opened;
            pause(lock, *main_);
            if (!last.hasEnded)
                runtime::fatal("thread \"" + last.name + "\" has nothing to do and does not end");
        }
        lock.unlock();
        last.thread.join();
        lock.lock();
        participants_.remove_if([&last](const auto& participant) { return participant.get() == &last; });
    }
}

VirtualTime::Participant& VirtualTime::current() {
    for (const auto& participant : participants_) {
        if (participant->id == std::this_thread::get_id() && !participant->hasEnded) return *participant;
    }
    runtime::fatal("a thread that virtual time does not know waits in it");
}

void VirtualTime::makeDue(Participant& participant, MonotonicTime due) {
    // Who is overdue has waited no longer than those who are due now.
    participant.due = std::max(due, now_);
    participant.order = nextOrder_++;
}

void VirtualTime::handOver() {
    Participant* next = nullptr;
    for (const auto& participant : participants_) {
        if (participant->hasEnded || !participant->due) continue;
        const bool isSooner = next == nullptr || *participant->due < *next->due ||
                              (*participant->due == *next->due && participant->order < next->order);
        if (isSooner) next = participant.get();
    }
    if (next == nullptr) {
        next = main_;
        next->wake = Wake::idle;
    } else {
        now_ = *next->due;
    }
    next->due.reset();
    next->hasBaton = true;
    next->gotBaton.notify_one();
}

void VirtualTime::pause(std::unique_lock<std::mutex>& lock, Participant& participant) {
    participant.hasBaton = false;
    handOver();
    participant.gotBaton.wait(lock, [&participant] { return participant.hasBaton; });
}

}  // namespace vantrel::simulated
