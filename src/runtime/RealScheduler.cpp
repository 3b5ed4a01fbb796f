#include "runtime/RealScheduler.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace vantrel::runtime {
namespace {

std::chrono::steady_clock::time_point steady(MonotonicTime time) {
    return std::chrono::steady_clock::time_point(
        std::chrono::duration_cast<std::chrono::steady_clock::duration>(time.time_since_epoch()));
}

class RealGate : public Gate {
  public:
    void open() override {
        // Under the lock: the thread that wakes may destroy the gate at once.
        const std::lock_guard lock(mutex_);
        open_ = true;
        changed_.notify_one();
    }

    Wake wait(std::optional<MonotonicTime> deadline) override {
        std::unique_lock lock(mutex_);
        const auto isOpen = [this] { return open_; };
        if (deadline) {
            if (!changed_.wait_until(lock, steady(*deadline), isOpen)) return Wake::deadline;
        } else {
            changed_.wait(lock, isOpen);
        }
        open_ = false;
        return Wake::opened;
    }

  private:
    std::mutex mutex_;
    std::condition_variable changed_;
    bool open_ = false;
};

}  // namespace

struct RealScheduler::Running {
    std::atomic<bool> ended = false;
    std::thread thread;
    std::function<void()> end;
};

MonotonicTime RealScheduler::now() const {
    return MonotonicTime(std::chrono::steady_clock::now().time_since_epoch());
}

WallTime RealScheduler::wallNow() const {
    return std::chrono::time_point_cast<std::chrono::microseconds>(std::chrono::system_clock::now());
}

void RealScheduler::sleepFor(MonotonicClock::duration duration) { std::this_thread::sleep_for(duration); }

std::unique_ptr<Gate> RealScheduler::makeGate() { return std::make_unique<RealGate>(); }

void RealScheduler::startThread(std::string, QualityOfService, std::function<void()> body) {
    start(threads_, std::move(body), {});
}

void RealScheduler::startServant(std::string, QualityOfService, std::function<void()> body,
                                 std::function<void()> end) {
    start(servants_, std::move(body), std::move(end));
}

void RealScheduler::start(Threads& threads, std::function<void()> body, std::function<void()> end) {
    // Threads end when their monitors go; joining the ended ones here keeps a
    // day of hot-plugging from piling them up.
    std::erase_if(threads, [](const std::shared_ptr<Running>& running) {
        if (!running->ended) return false;
        running->thread.join();
        return true;
    });
    auto running = std::make_shared<Running>();
    running->end = std::move(end);
    running->thread = std::thread([running = running.get(), body = std::move(body)] {
        body();
        running->ended = true;
    });
    threads.push_back(std::move(running));
}

void RealScheduler::finishThreads() {
    for (const auto& running : threads_) running->thread.join();
    threads_.clear();
    for (const auto& running : servants_) running->end();
    for (const auto& running : servants_) running->thread.join();
    servants_.clear();
}

}  // namespace vantrel::runtime
