// Descriptors that are looked at when a test says so, and not by a thread: in virtual time
// events arrive at a moment of the test's own.
// Threads: main thread. Lifetime: the watches must end before it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <poll.h>
#include <utility>

#include "platform/linux/Descriptors.h"

namespace vantrel::test {

class PolledDescriptors final : public linux::Descriptors {
  public:
    PolledDescriptors() = default;
    PolledDescriptors(const PolledDescriptors&) = delete;
    PolledDescriptors& operator=(const PolledDescriptors&) = delete;

    std::unique_ptr<Watch> watch(int descriptor, std::function<void()> ready) override {
        const std::uint64_t number = ++last_;
        watched_.emplace(number, Watched{descriptor, std::move(ready)});
        return std::make_unique<Watching>(*this, number);
    }

    // Calls whoever has something to read, until nobody has.
    void deliver() {
        while (deliverOne()) {
        }
    }
    std::size_t watched() const { return watched_.size(); }

  private:
    struct Watched {
        int descriptor = -1;
        std::function<void()> ready;
    };
    class Watching final : public Watch {
      public:
        Watching(PolledDescriptors& all, std::uint64_t number) : all_(all), number_(number) {}
        Watching(const Watching&) = delete;
        Watching& operator=(const Watching&) = delete;
        ~Watching() override { all_.watched_.erase(number_); }

      private:
        PolledDescriptors& all_;
        const std::uint64_t number_;
    };

    bool deliverOne() {
        const auto found = std::ranges::find_if(watched_, [](const auto& watched) {
            pollfd waiting{watched.second.descriptor, POLLIN, 0};
            return ::poll(&waiting, 1, 0) == 1;
        });
        if (found == watched_.end()) return false;
        // It may end its own watch.
        const auto ready = found->second.ready;
        ready();
        return true;
    }

    std::map<std::uint64_t, Watched> watched_;
    std::uint64_t last_ = 0;
};

}  // namespace vantrel::test
