// Time that passes only while nobody works: hours of use in milliseconds, the
// same way every run.
//
// Real threads pass one baton; a thread runs only while it holds it. A blocking
// sleep or a closed gate hands the baton to whoever is due next, and the clock
// jumps to that moment. Equal times run in order of registration.
//
// The thread that makes a VirtualTime is its main thread. It may also be
// destroyed only there, after finishThreads().
#pragma once

#include <condition_variable>
#include <cstdint>
#include <list>
#include <memory>
#include <mutex>
#include <thread>

#include "runtime/Scheduler.h"

namespace vantrel::simulated {

class VirtualTime : public runtime::Scheduler {
  public:
    // A simulation begins at this time of day unless told otherwise.
    static constexpr runtime::WallTime defaultStart{std::chrono::sys_days{
        std::chrono::year_month_day{std::chrono::year{2026}, std::chrono::January, std::chrono::day{5}}}};

    explicit VirtualTime(runtime::WallTime start = defaultStart);
    VirtualTime(const VirtualTime&) = delete;
    VirtualTime& operator=(const VirtualTime&) = delete;
    ~VirtualTime() override;

    runtime::MonotonicTime now() const override;
    runtime::WallTime wallNow() const override;
    void sleepFor(runtime::MonotonicClock::duration duration) override;
    std::unique_ptr<runtime::Gate> makeGate() override;
    void startThread(std::string name, runtime::QualityOfService, std::function<void()> body) override;
    void startServant(std::string name, runtime::QualityOfService quality, std::function<void()> body,
                      std::function<void()> end) override;
    void finishThreads() override;

  private:
    class VirtualGate;
    struct Participant;

    void start(std::string name, std::function<void()> body, std::function<void()> end);
    Participant& current();
    // Both need the mutex. A participant with a due time gets the baton then.
    void makeDue(Participant& participant, runtime::MonotonicTime due);
    void handOver();
    // Gives the baton away and returns with it, at the due time.
    void pause(std::unique_lock<std::mutex>& lock, Participant& participant);
    // Lets everybody run until `isMeant` have all ended, and removes those.
    void finish(std::unique_lock<std::mutex>& lock, const std::function<bool(const Participant&)>& isMeant);

    mutable std::mutex mutex_;
    runtime::MonotonicTime now_{};
    runtime::WallTime start_;
    std::uint64_t nextOrder_ = 0;
    std::list<std::unique_ptr<Participant>> participants_;
    Participant* main_ = nullptr;
};

}  // namespace vantrel::simulated
