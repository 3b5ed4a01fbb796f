// What was asked of the platform, in order, with the moment of each call. Calls
// may come from any thread; look at them when the threads are quiet.
#pragma once

#include <algorithm>
#include <chrono>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "runtime/Clock.h"

namespace vantrel::test {

class CallRecord {
  public:
    explicit CallRecord(const runtime::Clock& clock) : clock_(clock) {}

    void add(std::string call) {
        const std::lock_guard lock(mutex_);
        moments_.push_back(clock_.now());
        calls_.push_back(std::move(call));
    }
    void clear() {
        calls_.clear();
        moments_.clear();
    }

    const std::vector<std::string>& calls() const { return calls_; }
    std::ptrdiff_t count(std::string_view call) const { return std::ranges::count(calls_, call); }
    std::vector<runtime::MonotonicTime> moments(std::string_view call) const {
        std::vector<runtime::MonotonicTime> result;
        for (std::size_t index = 0; index < calls_.size(); ++index) {
            if (calls_[index] == call) result.push_back(moments_[index]);
        }
        return result;
    }
    // Of the calls that are directly followed by one that begins with `next`.
    std::vector<runtime::MonotonicTime> momentsBefore(std::string_view call, std::string_view next) const {
        std::vector<runtime::MonotonicTime> result;
        for (std::size_t index = 0; index + 1 < calls_.size(); ++index) {
            if (calls_[index] == call && calls_[index + 1].starts_with(next))
                result.push_back(moments_[index]);
        }
        return result;
    }

  private:
    const runtime::Clock& clock_;
    std::mutex mutex_;
    std::vector<std::string> calls_;
    std::vector<runtime::MonotonicTime> moments_;
};

}  // namespace vantrel::test
