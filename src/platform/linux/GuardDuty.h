// What a guard does: sees to it that a desktop keeps a light, for as long as outputs are
// turned off on it.
// Threads: main thread. Lifetime: everything given to it outlives it.
#pragma once

#include "platform/linux/Desktop.h"
#include "platform/linux/OutputSwitch.h"
#include "platform/linux/Session.h"
#include "runtime/MainLoop.h"

namespace vantrel::linux {

class GuardDuty {
  public:
    GuardDuty(Desktop& desktop, Session& session, OutputSwitch& outputs, runtime::MainLoop& mainLoop);
    GuardDuty(const GuardDuty&) = delete;
    GuardDuty& operator=(const GuardDuty&) = delete;
    ~GuardDuty();

    // Whether there is anything to guard: an output that was turned off, on a desktop that is there.
    bool isNeeded();
    // Until it isn't needed any more.
    void run();

  private:
    void look();

    Desktop& desktop_;
    Session& session_;
    OutputSwitch& outputs_;
    runtime::MainLoop& mainLoop_;
};

}  // namespace vantrel::linux
