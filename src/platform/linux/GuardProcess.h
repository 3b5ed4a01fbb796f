// The guard as a process of its own: this program once more, started to be one.
//
// It says so on its standard output as soon as it, or one before it, is on guard. It is no
// child that has to be waited for: it leaves its parent first.
// Threads: main thread. Time: posting one takes until it has looked at the desktop.
#pragma once

#include <chrono>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/OutputGuard.h"

namespace vantrel::linux {

class GuardProcess : public OutputGuard {
  public:
    static constexpr const char* onGuard = "on guard\n";

    // For a program to start on a busy computer. Whoever isn't on guard by then is not relied on.
    static constexpr std::chrono::milliseconds usualPatience{5000};

    // The program and its arguments. Patience begins anew with each piece of what it says.
    explicit GuardProcess(std::vector<std::string> command,
                          std::chrono::milliseconds patience = usualPatience)
        : command_(std::move(command)), patience_(patience) {}
    bool post() override;

  private:
    const std::vector<std::string> command_;
    const std::chrono::milliseconds patience_;
};

}  // namespace vantrel::linux
