// A program that runs while the main loop does, with this one's terminal and
// environment. What interrupts the program is left to it.
//
// Threads: main thread. Errors: isStarted() is false when it can't be started.
#pragma once

#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

#include "platform/linux/Descriptors.h"
#include "runtime/MainLoop.h"

namespace vantrel::test {

class Command {
  public:
    // Ends the main loop when it has ended.
    Command(std::vector<std::string> words, runtime::MainLoop& mainLoop, linux::Descriptors& descriptors);
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    ~Command();

    bool isStarted() const { return process_ > 0; }
    // After its end: its status, or 128 and the number of the signal that ended it.
    int status() const;

  private:
    pid_t process_ = -1;
    int descriptor_ = -1;
    std::unique_ptr<linux::Descriptors::Watch> watch_;
};

}  // namespace vantrel::test
