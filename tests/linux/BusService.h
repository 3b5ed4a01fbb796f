// Somebody on a bus who has a name, answers calls and sends signals: a login manager, as a
// rule. On a thread of the scheduler's, because whoever calls it waits for the answer.
//
// Threads: main thread. What it does there is done when the function returns.
// Lifetime: the scheduler outlives it; finish the scheduler's threads after it.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <future>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <mutex>
#include <poll.h>
#include <set>
#include <string>
#include <sys/eventfd.h>
#include <systemd/sd-bus.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "runtime/Scheduler.h"

namespace vantrel::linux {

class BusService {
  public:
    BusService(runtime::Scheduler& scheduler, const char* name) : wake_(::eventfd(0, EFD_CLOEXEC)) {
        EXPECT_GE(sd_bus_open_user(&bus_), 0);
        EXPECT_GE(sd_bus_add_filter(bus_, nullptr, &received, this), 0);
        EXPECT_GE(sd_bus_request_name(bus_, name, 0), 0);
        auto ended = std::make_shared<std::promise<void>>();
        ended_ = ended->get_future();
        scheduler.startThread("bus service", runtime::QualityOfService::userInitiated, [this, ended] {
            while (!isOver_) serve();
            ended->set_value();
        });
    }
    BusService(const BusService&) = delete;
    BusService& operator=(const BusService&) = delete;
    ~BusService() {
        perform([this] { isOver_ = true; });
        ended_.wait();
        sd_bus_flush_close_unref(bus_);
        ::close(wake_);
    }

    // Main thread: each of them before anybody calls, or by perform().
    // What a call of this member ("LidClosed", "SetBrightness") is answered with; an error
    // where nothing is said here.
    using Answer = std::function<void(sd_bus_message* call, sd_bus_message* answer)>;
    void answer(const std::string& member, Answer answer) {
        perform([&] { answers_[member] = std::move(answer); });
    }
    // A call of this member gets no answer at all.
    void keepSilent(const std::string& member) {
        perform([&] { silent_.insert(member); });
    }
    // Every call that came: "SetBrightness".
    std::vector<std::string> calls() {
        std::vector<std::string> calls;
        perform([&] { calls = calls_; });
        return calls;
    }
    // `append` fills it.
    void signal(const char* path, const char* interface, const char* member,
                const std::function<void(sd_bus_message*)>& append) {
        perform([&] {
            sd_bus_message* message = nullptr;
            EXPECT_GE(sd_bus_message_new_signal(bus_, &message, path, interface, member), 0);
            append(message);
            EXPECT_GE(sd_bus_send(bus_, message, nullptr), 0);
            sd_bus_message_unref(message);
            sd_bus_flush(bus_);
        });
    }

  private:
    void perform(const std::function<void()>& work) {
        std::promise<void> done;
        {
            const std::lock_guard lock(mutex_);
            work_ = [&] {
                work();
                done.set_value();
            };
        }
        const std::uint64_t one = 1;
        EXPECT_EQ(::write(wake_, &one, sizeof one), static_cast<ssize_t>(sizeof one));
        done.get_future().wait();
    }

    // On the thread.
    void serve() {
        while (sd_bus_process(bus_, nullptr) > 0) {
        }
        sd_bus_flush(bus_);
        std::array<pollfd, 2> waiting{pollfd{sd_bus_get_fd(bus_), POLLIN, 0}, pollfd{wake_, POLLIN, 0}};
        ::poll(waiting.data(), waiting.size(), -1);
        if ((waiting[1].revents & POLLIN) == 0) return;
        std::uint64_t count = 0;
        if (::read(wake_, &count, sizeof count) != sizeof count) return;
        std::function<void()> work;
        {
            const std::lock_guard lock(mutex_);
            work = std::exchange(work_, nullptr);
        }
        if (work) work();
    }
    static int received(sd_bus_message* call, void* self, sd_bus_error*) {
        return static_cast<BusService*>(self)->reply(call);
    }
    int reply(sd_bus_message* call) {
        std::uint8_t type = 0;
        sd_bus_message_get_type(call, &type);
        if (type != SD_BUS_MESSAGE_METHOD_CALL) return 0;
        std::string member = sd_bus_message_get_member(call);
        // A property goes by its own name.
        if (member == "Get") {
            const char* interface = nullptr;
            const char* property = nullptr;
            sd_bus_message_read(call, "ss", &interface, &property);
            member = property;
        }
        calls_.push_back(member);
        if (silent_.contains(member)) return 1;
        const auto found = answers_.find(member);
        if (found == answers_.end()) {
            sd_bus_reply_method_errorf(call, SD_BUS_ERROR_UNKNOWN_METHOD, "no %s here", member.c_str());
            return 1;
        }
        sd_bus_message* answer = nullptr;
        sd_bus_message_new_method_return(call, &answer);
        found->second(call, answer);
        sd_bus_send(nullptr, answer, nullptr);
        sd_bus_message_unref(answer);
        return 1;
    }

    const int wake_;
    sd_bus* bus_ = nullptr;
    std::future<void> ended_;
    std::mutex mutex_;
    std::function<void()> work_;
    // The thread's.
    bool isOver_ = false;
    std::map<std::string, Answer> answers_;
    std::set<std::string> silent_;
    std::vector<std::string> calls_;
};

}  // namespace vantrel::linux
