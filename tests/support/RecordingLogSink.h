// Keeps every log line for a test to look at. Lines may come from any thread;
// look at them when the threads are quiet.
#pragma once

#include <mutex>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/LogSink.h"

namespace vantrel::test {

struct LogLine {
    std::string subsystem;
    std::string category;
    platform::LogLevel level;
    std::string text;
    bool operator==(const LogLine&) const = default;
};

inline std::ostream& operator<<(std::ostream& stream, const LogLine& line) {
    return stream << line.subsystem << ' ' << line.category << " level " << static_cast<int>(line.level)
                  << ": " << line.text;
}

class RecordingLogSink : public platform::LogSink {
  public:
    void write(std::string_view subsystem, std::string_view category, platform::LogLevel level,
               std::string_view text) override {
        const std::lock_guard lock(mutex_);
        lines_.push_back({std::string(subsystem), std::string(category), level, std::string(text)});
    }

    const std::vector<LogLine>& lines() const { return lines_; }

  private:
    std::mutex mutex_;
    std::vector<LogLine> lines_;
};

}  // namespace vantrel::test
