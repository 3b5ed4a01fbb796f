// Turns the desktop's outputs off and on, so that the user is never left in the dark:
//
// - the last output that can be seen isn't turned off;
// - what was turned off is noted before, and a guard posted who outlives the program;
// - when nothing can be seen any more, whoever of program and guard sees it first turns
//   on again what was turned off.
//
// A built-in panel under a closed lid can't be seen.
// Threads: main thread. Lifetime: everything given to it outlives it.
#pragma once

#include <string>
#include <vector>

#include "platform/Log.h"
#include "platform/linux/Desktop.h"
#include "platform/linux/OutputGuard.h"
#include "platform/linux/Session.h"
#include "platform/linux/SessionMemory.h"

namespace vantrel::linux {

class OutputSwitch {
  public:
    // Without a guard nothing is turned off; the guard itself needs none.
    OutputSwitch(Desktop& desktop, Session& session, SessionMemory& memory, OutputGuard* guard,
                 platform::Log log);
    OutputSwitch(const OutputSwitch&) = delete;
    OutputSwitch& operator=(const OutputSwitch&) = delete;

    // Each is true when the output is as it was asked for.
    bool darken(const std::string& output);
    bool light(const std::string& output);

    // To be called whenever outputs or lid may have changed: lights what was turned off
    // if nothing else can be seen, and forgets what has been lit by others.
    void keepLight();
    // Whether nothing is turned off any more that needs to be guarded.
    bool isIdle() const { return memory_.darkened().empty(); }

  private:
    bool canBeSeen(const Desktop::Output& output);
    bool canAnyBeSeen(const std::vector<Desktop::Output>& outputs, const std::string& except = {});
    void log(platform::LogLevel level, const std::string& message) const;

    Desktop& desktop_;
    Session& session_;
    SessionMemory& memory_;
    OutputGuard* guard_;
    platform::Log log_;
};

}  // namespace vantrel::linux
