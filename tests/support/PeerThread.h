// The thread of a service that a test has to talk to: it serves, and between two requests
// it does what the test gives it.
//
// Threads: the test's, but for takeWork(). Lifetime: end() before what it serves with goes.
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

#include "runtime/RealScheduler.h"

namespace vantrel::test {

class PeerThread {
  public:
    PeerThread()
        : bell_(::eventfd(0, EFD_CLOEXEC)), done_(scheduler_.makeGate()), pause_(scheduler_.makeGate()) {}
    PeerThread(const PeerThread&) = delete;
    PeerThread& operator=(const PeerThread&) = delete;
    ~PeerThread() { ::close(bell_); }

    // `serve` takes work whenever the bell can be read, until isOver().
    void start(std::string name, std::function<void()> serve) {
        scheduler_.startThread(std::move(name), runtime::QualityOfService::userInitiated, std::move(serve));
    }
    int bell() const { return bell_; }
    void takeWork() {
        eventfd_t rings = 0;
        ::eventfd_read(bell_, &rings);
        std::function<void()> work;
        {
            const std::scoped_lock hold(lock_);
            work = std::move(work_);
        }
        work();
        done_->open();
    }
    // On the thread.
    bool isOver() const { return isOver_; }

    // Returns when it has been done.
    void run(std::function<void()> work) {
        {
            const std::scoped_lock hold(lock_);
            work_ = std::move(work);
        }
        ::eventfd_write(bell_, 1);
        done_->wait(std::nullopt);
    }
    // Serves nobody until it goes on.
    void pause() {
        run([this] {
            done_->open();
            pause_->wait(std::nullopt);
        });
    }
    void goOn() {
        pause_->open();
        done_->wait(std::nullopt);
    }
    void end() {
        run([this] { isOver_ = true; });
        scheduler_.finishThreads();
    }

  private:
    const int bell_;
    std::mutex lock_;
    std::function<void()> work_;
    // The thread's.
    bool isOver_ = false;
    runtime::RealScheduler scheduler_;
    std::unique_ptr<runtime::Gate> done_;
    std::unique_ptr<runtime::Gate> pause_;
};

}  // namespace vantrel::test
