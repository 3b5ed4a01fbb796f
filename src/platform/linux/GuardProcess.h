// The guard as a process of its own: this program once more, started to be one.
//
// It says so on its standard output as soon as it, or one before it, is on guard. It is no
// child that has to be waited for: it leaves its parent first.
// Threads: main thread. Time: posting one takes until it has looked at the desktop.
#pragma once

#include <string>
#include <vector>

#include "platform/linux/OutputGuard.h"

namespace vantrel::linux {

class GuardProcess : public OutputGuard {
  public:
    static constexpr const char* onGuard = "on guard\n";

    // The program and its arguments.
    explicit GuardProcess(std::vector<std::string> command) : command_(std::move(command)) {}
    bool post() override;

  private:
    std::vector<std::string> command_;
};

}  // namespace vantrel::linux
