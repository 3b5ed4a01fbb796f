// Shows the log on a stream as the system log shows it: time, level, program,
// subsystem and category, text. Any thread.
#pragma once

#include <mutex>
#include <ostream>

#include "platform/LogSink.h"
#include "runtime/Clock.h"

namespace vantrel::app {

class ConsoleLog : public platform::LogSink {
  public:
    // Leaves out what is below `least`. Clock and stream must outlive the log.
    ConsoleLog(const runtime::Clock& clock, std::ostream& stream, platform::LogLevel least)
        : clock_(clock), stream_(stream), least_(least) {}

    void write(std::string_view subsystem, std::string_view category, platform::LogLevel level,
               std::string_view text) override;

  private:
    const runtime::Clock& clock_;
    std::ostream& stream_;
    platform::LogLevel least_;
    std::mutex mutex_;
};

}  // namespace vantrel::app
