#include "runtime/SerialQueue.h"

#include <deque>
#include <mutex>
#include <utility>

namespace vantrel::runtime {

struct SerialQueue::Blocks {
    std::mutex mutex;
    std::deque<std::function<void()>> waiting;
    bool closed = false;
    std::unique_ptr<Gate> gate;

    void run() {
        for (;;) {
            std::unique_lock lock(mutex);
            if (waiting.empty()) {
                if (closed) return;
                lock.unlock();
                gate->wait(std::nullopt);
                continue;
            }
            std::function<void()> block = std::move(waiting.front());
            waiting.pop_front();
            lock.unlock();
            block();
        }
    }
};

SerialQueue::SerialQueue(Scheduler& scheduler, std::string label, QualityOfService quality)
    : label_(std::move(label)), blocks_(std::make_shared<Blocks>()) {
    blocks_->gate = scheduler.makeGate();
    scheduler.startThread(label_, quality, [blocks = blocks_] { blocks->run(); });
}

SerialQueue::~SerialQueue() {
    {
        const std::lock_guard lock(blocks_->mutex);
        blocks_->closed = true;
    }
    blocks_->gate->open();
}

void SerialQueue::submit(std::function<void()> block) {
    {
        const std::lock_guard lock(blocks_->mutex);
        blocks_->waiting.push_back(std::move(block));
    }
    blocks_->gate->open();
}

}  // namespace vantrel::runtime
