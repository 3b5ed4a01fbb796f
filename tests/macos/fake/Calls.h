// The calls of the Mac's C functions that can fail, in their order; and which of
// them does. Threads: any.
#pragma once

#include <algorithm>
#include <cstddef>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vantrel::macos::fake {

class Calls {
  public:
    // Notes a call, and tells whether it has to fail.
    bool fails(const char* function) {
        const std::lock_guard lock(mutex_);
        made_.emplace_back(function);
        if (failing_ == made_.size() - 1) return true;
        if (next_ != function) return false;
        if (--callsUntilNext_ > 0) return false;
        next_.clear();
        return true;
    }

    // The n-th call of this function from now on fails, once.
    void failNext(std::string function, unsigned nth = 1) {
        const std::lock_guard lock(mutex_);
        next_ = std::move(function);
        callsUntilNext_ = nth;
    }
    // The call with this number fails, counted from 0.
    void failCall(std::size_t number) {
        const std::lock_guard lock(mutex_);
        failing_ = number;
    }
    void forget() {
        const std::lock_guard lock(mutex_);
        made_.clear();
        next_.clear();
        failing_.reset();
    }

    std::vector<std::string> made() const {
        const std::lock_guard lock(mutex_);
        return made_;
    }
    std::size_t count(const std::string& function) const {
        const std::lock_guard lock(mutex_);
        return static_cast<std::size_t>(std::count(made_.begin(), made_.end(), function));
    }

  private:
    mutable std::mutex mutex_;
    std::vector<std::string> made_;
    std::string next_;
    unsigned callsUntilNext_ = 0;
    std::optional<std::size_t> failing_;
};

}  // namespace vantrel::macos::fake
