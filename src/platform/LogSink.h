// The system log. A sink decides nothing about a line: not its text, not its
// level, only where it goes. Lines may come from any thread.
#pragma once

#include <string_view>

namespace vantrel::platform {

// The system log's levels, from least to most severe. `standard` is the level
// that the system log calls "default" (a reserved word here).
enum class LogLevel { debug, info, standard, error, fault };

class LogSink {
  public:
    virtual ~LogSink() = default;
    virtual void write(std::string_view subsystem, std::string_view category, LogLevel level,
                       std::string_view text) = 0;
};

}  // namespace vantrel::platform
