// The transfer tables of the desktop's outputs, each of which can be had back as it was
// before the program set the first one: also by the next program, after a crash.
// Threads: main thread. Lifetime: desktop and memory outlive it.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/DisplayServices.h"
#include "platform/linux/Desktop.h"
#include "platform/linux/SessionMemory.h"

namespace vantrel::linux {

class TransferTables {
  public:
    TransferTables(Desktop& desktop, SessionMemory& memory) : desktop_(desktop), memory_(memory) {}

    std::optional<platform::TransferTable> table(const std::string& output) { return desktop_.table(output); }
    void set(const std::string& output, const platform::TransferTable& table);
    // Gives every output back what it had before this program set it, or one that ended
    // without a word.
    void restore();
    // Gives those back that this program set: what is noted besides may be another's that runs.
    void restoreOwn();

  private:
    Desktop& desktop_;
    SessionMemory& memory_;
    // What each output that was set had before.
    std::map<std::string, platform::TransferTable> found_;
};

}  // namespace vantrel::linux
