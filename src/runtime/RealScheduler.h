// Time and threads as the computer has them.
#pragma once

#include <thread>
#include <vector>

#include "runtime/Scheduler.h"

namespace vantrel::runtime {

class RealScheduler : public Scheduler {
  public:
    RealScheduler() = default;
    RealScheduler(const RealScheduler&) = delete;
    RealScheduler& operator=(const RealScheduler&) = delete;
    ~RealScheduler() override { finishThreads(); }

    MonotonicTime now() const override;
    WallTime wallNow() const override;
    void sleepFor(MonotonicClock::duration duration) override;
    std::unique_ptr<Gate> makeGate() override;
    void startThread(std::string name, QualityOfService, std::function<void()> body) override;
    void startServant(std::string name, QualityOfService, std::function<void()> body,
                      std::function<void()> end) override;
    void finishThreads() override;

  private:
    struct Running;
    using Threads = std::vector<std::shared_ptr<Running>>;
    static void start(Threads& threads, std::function<void()> body, std::function<void()> end);

    Threads threads_;
    Threads servants_;
};

}  // namespace vantrel::runtime
