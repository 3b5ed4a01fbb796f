#include "ui/qt/QtScheduler.h"

#include <mutex>
#include <utility>

namespace vantrel::qt {

struct QtScheduler::Waker {
    std::mutex mutex;
    std::function<void()> wake;
};

namespace {

template <class Waker>
class WakingGate : public runtime::Gate {
  public:
    WakingGate(std::unique_ptr<runtime::Gate> inner, std::shared_ptr<Waker> waker)
        : inner_(std::move(inner)), waker_(std::move(waker)) {}

    void open() override {
        // The thread that it lets pass may destroy the gate at once.
        const std::shared_ptr<Waker> waker = waker_;
        inner_->open();
        const std::lock_guard lock(waker->mutex);
        if (waker->wake) waker->wake();
    }
    runtime::Wake wait(std::optional<runtime::MonotonicTime> deadline) override {
        return inner_->wait(deadline);
    }

  private:
    std::unique_ptr<runtime::Gate> inner_;
    std::shared_ptr<Waker> waker_;
};

}  // namespace

QtScheduler::QtScheduler(runtime::Scheduler& inner) : inner_(inner), waker_(std::make_shared<Waker>()) {}

void QtScheduler::onOpen(std::function<void()> wake) {
    const std::lock_guard lock(waker_->mutex);
    waker_->wake = std::move(wake);
}

std::unique_ptr<runtime::Gate> QtScheduler::makeGate() {
    return std::make_unique<WakingGate<Waker>>(inner_.makeGate(), waker_);
}

}  // namespace vantrel::qt
