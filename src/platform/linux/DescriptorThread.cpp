#include "platform/linux/DescriptorThread.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

#include "runtime/Fatal.h"

namespace vantrel::linux {

// Shared by the thread and by watches that outlive it.
class DescriptorThread::Epoll {
  public:
    static constexpr std::uint64_t end = 0;

    Epoll() : epoll_(::epoll_create1(EPOLL_CLOEXEC)), end_(::eventfd(0, EFD_CLOEXEC)) {
        runtime::require(epoll_ >= 0 && end_ >= 0, "no file descriptor is left to wait with");
        epoll_event event{EPOLLIN, {}};
        event.data.u64 = end;
        ::epoll_ctl(epoll_, EPOLL_CTL_ADD, end_, &event);
    }
    Epoll(const Epoll&) = delete;
    Epoll& operator=(const Epoll&) = delete;
    ~Epoll() {
        ::close(epoll_);
        ::close(end_);
    }

    // Main thread. Reported once, until it is armed again.
    std::uint64_t add(int descriptor, std::function<void()> ready) {
        const std::uint64_t number = ++last_;
        work_.emplace(number, Work{descriptor, std::move(ready)});
        runtime::require(control(EPOLL_CTL_ADD, descriptor, number),
                         "a file descriptor that can't be waited for");
        return number;
    }
    void remove(std::uint64_t number) {
        const auto found = work_.find(number);
        control(EPOLL_CTL_DEL, found->second.descriptor, number);
        work_.erase(found);
    }

    // Main thread. Does nothing for a watch that is gone.
    void report(std::uint64_t number, std::uint32_t events) {
        const auto found = work_.find(number);
        if (found == work_.end()) return;
        const Work work = found->second;
        work.ready();
        // The work may have ended its own watch.
        const bool isOver = (events & (EPOLLERR | EPOLLHUP)) != 0;
        if (!isOver && work_.contains(number)) control(EPOLL_CTL_MOD, work.descriptor, number);
    }

    void askToEnd() {
        const std::uint64_t one = 1;
        while (::write(end_, &one, sizeof one) < 0 && errno == EINTR) {
        }
    }

    // The thread. How many events there are.
    int wait(std::array<epoll_event, 8>& events) {
        int count = -1;
        do {
            count = ::epoll_wait(epoll_, events.data(), static_cast<int>(events.size()), -1);
        } while (count < 0 && errno == EINTR);
        return count;
    }

  private:
    struct Work {
        int descriptor = -1;
        std::function<void()> ready;
    };

    bool control(int operation, int descriptor, std::uint64_t number) {
        epoll_event event{EPOLLIN | EPOLLONESHOT, {}};
        event.data.u64 = number;
        return ::epoll_ctl(epoll_, operation, descriptor, &event) == 0;
    }

    const int epoll_;
    const int end_;
    // Main thread.
    std::map<std::uint64_t, Work> work_;
    std::uint64_t last_ = end;
};

class DescriptorThread::Watching : public Watch {
  public:
    Watching(std::shared_ptr<Epoll> epoll, std::uint64_t number)
        : epoll_(std::move(epoll)), number_(number) {}
    Watching(const Watching&) = delete;
    Watching& operator=(const Watching&) = delete;
    ~Watching() override { epoll_->remove(number_); }

  private:
    const std::shared_ptr<Epoll> epoll_;
    const std::uint64_t number_;
};

DescriptorThread::DescriptorThread(runtime::MainLoop& mainLoop)
    : epoll_(std::make_shared<Epoll>()), poster_(mainLoop.poster()), thread_([this] { run(); }) {}

DescriptorThread::~DescriptorThread() {
    epoll_->askToEnd();
    thread_.join();
}

std::unique_ptr<Descriptors::Watch> DescriptorThread::watch(int descriptor, std::function<void()> ready) {
    return std::make_unique<Watching>(epoll_, epoll_->add(descriptor, std::move(ready)));
}

void DescriptorThread::run() {
    std::array<epoll_event, 8> events{};
    while (true) {
        const int count = epoll_->wait(events);
        if (count < 0) return;
        for (int index = 0; index < count; ++index) {
            const epoll_event& event = events.at(static_cast<std::size_t>(index));
            if (event.data.u64 == Epoll::end) return;
            poster_.post([epoll = std::weak_ptr(epoll_), number = event.data.u64, events = event.events] {
                if (const auto there = epoll.lock()) there->report(number, events);
            });
        }
    }
}

}  // namespace vantrel::linux
