// Runs blocks one after the other, in the order in which they were submitted,
// on a thread of its own.
//
// Threads: made and destroyed on the main thread; submit() from any thread.
// Lifetime: blocks that were submitted still run after the queue is destroyed;
// destroying it never waits for them (Scheduler::finishThreads does).
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "runtime/Scheduler.h"

namespace vantrel::runtime {

class SerialQueue {
  public:
    SerialQueue(Scheduler& scheduler, std::string label, QualityOfService quality);
    SerialQueue(const SerialQueue&) = delete;
    SerialQueue& operator=(const SerialQueue&) = delete;
    ~SerialQueue();

    const std::string& label() const { return label_; }
    void submit(std::function<void()> block);

  private:
    struct Blocks;
    std::string label_;
    std::shared_ptr<Blocks> blocks_;
};

}  // namespace vantrel::runtime
