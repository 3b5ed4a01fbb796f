#include "runtime/WakingScheduler.h"

#include <mutex>
#include <utility>

namespace vantrel::runtime {

struct WakingScheduler::Waker {
    std::mutex mutex;
    std::function<void()> wake;
};

namespace {

template <class Waker>
class WakingGate : public Gate {
  public:
    WakingGate(std::unique_ptr<Gate> inner, std::shared_ptr<Waker> waker)
        : inner_(std::move(inner)), waker_(std::move(waker)) {}

    void open() override {
        // The thread that it lets pass may destroy the gate at once.
        const std::shared_ptr<Waker> waker = waker_;
        inner_->open();
        const std::lock_guard lock(waker->mutex);
        if (waker->wake) waker->wake();
    }
    Wake wait(std::optional<MonotonicTime> deadline) override { return inner_->wait(deadline); }

  private:
    std::unique_ptr<Gate> inner_;
    std::shared_ptr<Waker> waker_;
};

}  // namespace

WakingScheduler::WakingScheduler(Scheduler& inner) : inner_(inner), waker_(std::make_shared<Waker>()) {}

void WakingScheduler::onOpen(std::function<void()> wake) {
    const std::lock_guard lock(waker_->mutex);
    waker_->wake = std::move(wake);
}

std::unique_ptr<Gate> WakingScheduler::makeGate() {
    return std::make_unique<WakingGate<Waker>>(inner_.makeGate(), waker_);
}

}  // namespace vantrel::runtime
