// Shows the log on a stream as the system log shows it: time, level, program,
// subsystem and category, text. Any thread.
#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <ostream>

#include "platform/LogSink.h"
#include "runtime/Clock.h"

namespace vantrel::app {

class ConsoleLog : public platform::LogSink {
  public:
    // One for what the user asked to see; without a level nobody sees anything.
    static std::unique_ptr<platform::LogSink> from(std::optional<platform::LogLevel> least,
                                                   const runtime::Clock& clock, std::ostream& stream);

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
