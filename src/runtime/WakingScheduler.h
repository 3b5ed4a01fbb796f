// A scheduler under a toolkit's event loop: opening one of its gates also wakes that
// loop.
//
// The main thread waits in the toolkit's event loop and not at its MainLoop's gate; who
// posts to it opens the gate all the same.
// Threads: as Scheduler. Lifetime: `inner` outlives it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "runtime/Scheduler.h"

namespace vantrel::runtime {

class WakingScheduler : public Scheduler {
  public:
    explicit WakingScheduler(Scheduler& inner);

    // Called on any thread, after each opening of a gate; nothing is called any more
    // when this has returned with an empty function.
    void onOpen(std::function<void()> wake);

    MonotonicTime now() const override { return inner_.now(); }
    WallTime wallNow() const override { return inner_.wallNow(); }
    void sleepFor(MonotonicClock::duration duration) override { inner_.sleepFor(duration); }
    std::unique_ptr<Gate> makeGate() override;
    void startThread(std::string name, QualityOfService quality, std::function<void()> body) override {
        inner_.startThread(std::move(name), quality, std::move(body));
    }
    void startServant(std::string name, QualityOfService quality, std::function<void()> body,
                      std::function<void()> end) override {
        inner_.startServant(std::move(name), quality, std::move(body), std::move(end));
    }
    void finishThreads() override { inner_.finishThreads(); }

  private:
    struct Waker;

    Scheduler& inner_;
    std::shared_ptr<Waker> waker_;
};

}  // namespace vantrel::runtime
