// Keeps every log line with the moment at which it was written. Lines may come
// from any thread; look at them when the threads are quiet.
#pragma once

#include <string_view>
#include <vector>

#include "runtime/Clock.h"
#include "support/RecordingLogSink.h"

namespace vantrel::test {

class TimedLogSink : public platform::LogSink {
  public:
    explicit TimedLogSink(const runtime::Clock& clock) : clock_(clock) {}

    void write(std::string_view subsystem, std::string_view category, platform::LogLevel level,
               std::string_view text) override {
        const std::lock_guard lock(mutex_);
        moments_.push_back(clock_.now());
        lines_.push_back({std::string(subsystem), std::string(category), level, std::string(text)});
    }

    const std::vector<LogLine>& lines() const { return lines_; }
    // Of the lines that say exactly `text`.
    std::vector<runtime::MonotonicTime> moments(std::string_view text) const {
        std::vector<runtime::MonotonicTime> result;
        for (std::size_t index = 0; index < lines_.size(); ++index) {
            if (lines_[index].text == text) result.push_back(moments_[index]);
        }
        return result;
    }
    void clear() {
        lines_.clear();
        moments_.clear();
    }

  private:
    const runtime::Clock& clock_;
    std::mutex mutex_;
    std::vector<LogLine> lines_;
    std::vector<runtime::MonotonicTime> moments_;
};

}  // namespace vantrel::test
