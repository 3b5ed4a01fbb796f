// Where log lines go when nobody asked to see them and the system keeps no log.
#pragma once

#include "platform/LogSink.h"

namespace vantrel::app {

class NoLog : public platform::LogSink {
  public:
    void write(std::string_view, std::string_view, platform::LogLevel, std::string_view) override {}
};

}  // namespace vantrel::app
