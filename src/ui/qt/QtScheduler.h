// A scheduler under Qt's event loop: opening one of its gates also wakes that loop.
//
// The main thread waits in Qt and not at its MainLoop's gate; who posts to it opens
// the gate all the same.
// Threads: as Scheduler. Lifetime: `inner` outlives it.
#pragma once

#include <functional>
#include <memory>

#include "runtime/Scheduler.h"

namespace vantrel::qt {

class QtScheduler : public runtime::Scheduler {
  public:
    explicit QtScheduler(runtime::Scheduler& inner);

    // Called on any thread, after each opening of a gate; nothing is called any more
    // when this has returned with an empty function.
    void onOpen(std::function<void()> wake);

    runtime::MonotonicTime now() const override { return inner_.now(); }
    runtime::WallTime wallNow() const override { return inner_.wallNow(); }
    void sleepFor(runtime::MonotonicClock::duration duration) override { inner_.sleepFor(duration); }
    std::unique_ptr<runtime::Gate> makeGate() override;
    void startThread(std::string name, runtime::QualityOfService quality,
                     std::function<void()> body) override {
        inner_.startThread(std::move(name), quality, std::move(body));
    }
    void finishThreads() override { inner_.finishThreads(); }

  private:
    struct Waker;

    runtime::Scheduler& inner_;
    std::shared_ptr<Waker> waker_;
};

}  // namespace vantrel::qt
