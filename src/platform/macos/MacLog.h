// The unified log of the system. Texts are public: they name monitors and inputs,
// nothing that a person typed in confidence.
// Threads: any.
#pragma once

#include <memory>

#include "platform/LogSink.h"

namespace vantrel::macos {

class MacLog : public platform::LogSink {
  public:
    MacLog();
    MacLog(const MacLog&) = delete;
    MacLog& operator=(const MacLog&) = delete;
    ~MacLog() override;

    void write(std::string_view subsystem, std::string_view category, platform::LogLevel level,
               std::string_view text) override;

  private:
    struct Logs;
    std::unique_ptr<Logs> logs_;
};

}  // namespace vantrel::macos
