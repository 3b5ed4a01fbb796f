// Virtual time that tells the wire which worker each thread is.
#pragma once

#include <utility>

#include "platform/simulated/VirtualTime.h"
#include "storms/Wire.h"

namespace vantrel::storms {

class StormScheduler : public runtime::Scheduler {
  public:
    StormScheduler(simulated::VirtualTime& time, Wire& wire) : time_(time), wire_(wire) {}

    Wire::WorkerNumber newestWorker() const { return newest_; }
    std::uint64_t started() const { return started_; }

    runtime::MonotonicTime now() const override { return time_.now(); }
    runtime::WallTime wallNow() const override { return time_.wallNow(); }
    void sleepFor(runtime::MonotonicClock::duration duration) override { time_.sleepFor(duration); }
    std::unique_ptr<runtime::Gate> makeGate() override { return time_.makeGate(); }
    void startThread(std::string name, runtime::QualityOfService quality,
                     std::function<void()> body) override {
        newest_ = wire_.addWorker();
        ++started_;
        time_.startThread(std::move(name), quality, [worker = newest_, body = std::move(body)]() mutable {
            Wire::runs(worker);
            body();
            body = nullptr;
        });
    }
    void startServant(std::string name, runtime::QualityOfService quality, std::function<void()> body,
                      std::function<void()> end) override {
        time_.startServant(std::move(name), quality, std::move(body), std::move(end));
    }
    void finishThreads() override { time_.finishThreads(); }

  private:
    simulated::VirtualTime& time_;
    Wire& wire_;
    Wire::WorkerNumber newest_ = Wire::noWorker;
    std::uint64_t started_ = 0;
};

}  // namespace vantrel::storms
