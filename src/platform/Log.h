// The program's voice in the system log: one subsystem, three categories.
//
//     log.write(Log::ddc, LogLevel::debug, label + " read 0x10: unsupported");
//
// Every message about a display starts with the display's name. Any thread.
#pragma once

#include <string_view>

#include "platform/LogSink.h"

namespace vantrel::platform {

class Log {
  public:
    // The application's bundle identifier.
    static constexpr std::string_view subsystem = "org.vantrel.Vantrel";

    // Transport: I2C and VCP traffic, capabilities, reconnects.
    static constexpr std::string_view ddc = "ddc";
    // Display models and manager: loads, inputs, output off and on, refreshes.
    static constexpr std::string_view display = "display";
    // User actions and popover sizing.
    static constexpr std::string_view ui = "ui";

    // The sink must outlive the log.
    explicit Log(LogSink& sink) : sink_(&sink) {}

    void write(std::string_view category, LogLevel level, std::string_view text) const {
        sink_->write(subsystem, category, level, text);
    }

  private:
    LogSink* sink_;
};

}  // namespace vantrel::platform
