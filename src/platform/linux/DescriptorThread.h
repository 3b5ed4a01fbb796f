// Descriptors over one thread that sleeps in the kernel until one of them is ready, and
// then hands the main loop its work. It waits for that work to be done before it looks at
// the descriptor again, so that a full one isn't reported over and over.
//
// The thread isn't the scheduler's: it serves the platform until this object goes, which
// is after the scheduler's threads have ended.
// Threads: main thread. Lifetime: the main loop may go first.
#pragma once

#include <memory>
#include <thread>

#include "platform/linux/Descriptors.h"
#include "runtime/MainLoop.h"

namespace vantrel::linux {

class DescriptorThread : public Descriptors {
  public:
    explicit DescriptorThread(runtime::MainLoop& mainLoop);
    DescriptorThread(const DescriptorThread&) = delete;
    DescriptorThread& operator=(const DescriptorThread&) = delete;
    ~DescriptorThread() override;

    std::unique_ptr<Watch> watch(int descriptor, std::function<void()> ready) override;

  private:
    class Epoll;
    class Watching;

    void run();

    std::shared_ptr<Epoll> epoll_;
    runtime::MainLoop::Poster poster_;
    std::thread thread_;
};

}  // namespace vantrel::linux
