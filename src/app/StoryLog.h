// What is printed while a story plays: its steps and the program's log, each with
// the time since the story began. Any thread.
#pragma once

#include <mutex>
#include <ostream>
#include <string_view>

#include "platform/LogSink.h"
#include "runtime/Clock.h"

namespace vantrel::app {

class StoryLog : public platform::LogSink {
  public:
    // The story begins now. Leaves out log lines below `least`. Clock and stream
    // must outlive the log.
    StoryLog(const runtime::Clock& clock, std::ostream& stream, platform::LogLevel least)
        : clock_(clock), start_(clock.now()), stream_(stream), least_(least) {}

    // "> 5.000 s  ...": what happens now.
    void step(std::string_view text) { print('>', text); }
    // "! 5.000 s  ...": why it could not happen, or what the program tells its user.
    void message(std::string_view text) { print('!', text); }
    void write(std::string_view subsystem, std::string_view category, platform::LogLevel level,
               std::string_view text) override;

    // Nothing is printed from now on, whatever threads are still busy.
    void close();

  private:
    void print(char mark, std::string_view text);

    const runtime::Clock& clock_;
    const runtime::MonotonicTime start_;
    std::ostream& stream_;
    const platform::LogLevel least_;
    std::mutex mutex_;
    bool isClosed_ = false;
};

}  // namespace vantrel::app
