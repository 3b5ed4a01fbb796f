// Where the program's log lines go: to the log that the system keeps, if it keeps one,
// and to a stream those that the user asked to see. Any thread.
#pragma once

#include <memory>
#include <optional>
#include <ostream>

#include "platform/LogSink.h"
#include "runtime/Clock.h"

namespace vantrel::app {

class ProgramLog : public platform::LogSink {
  public:
    // Without a level nobody asked to see anything. What the references mean outlives
    // the last line.
    ProgramLog(platform::LogSink* systemLog, std::optional<platform::LogLevel> shown,
               const runtime::Clock& clock, std::ostream& stream);

    void write(std::string_view subsystem, std::string_view category, platform::LogLevel level,
               std::string_view text) override;

  private:
    platform::LogSink* systemLog_;
    std::unique_ptr<platform::LogSink> shown_;
};

}  // namespace vantrel::app
