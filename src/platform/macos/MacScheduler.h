// Gives the threads of another scheduler the name and the quality of service that
// were asked for, as the Mac's tools and its scheduler of threads know them.
// Threads: as Scheduler. Lifetime: `inner` outlives it.
#pragma once

#include "runtime/Scheduler.h"

namespace vantrel::macos {

class MacScheduler : public runtime::Scheduler {
  public:
    explicit MacScheduler(runtime::Scheduler& inner) : inner_(inner) {}

    runtime::MonotonicTime now() const override { return inner_.now(); }
    runtime::WallTime wallNow() const override { return inner_.wallNow(); }
    void sleepFor(runtime::MonotonicClock::duration duration) override { inner_.sleepFor(duration); }
    std::unique_ptr<runtime::Gate> makeGate() override { return inner_.makeGate(); }
    void startThread(std::string name, runtime::QualityOfService quality,
                     std::function<void()> body) override;
    void startServant(std::string name, runtime::QualityOfService quality, std::function<void()> body,
                      std::function<void()> end) override;
    void finishThreads() override { inner_.finishThreads(); }

  private:
    runtime::Scheduler& inner_;
};

}  // namespace vantrel::macos
