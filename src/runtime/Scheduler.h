// Time and threads: the one seam behind which the program runs in real time or
// in a simulation's virtual time without being able to tell.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "runtime/Clock.h"
#include "runtime/Gate.h"

namespace vantrel::runtime {

// How soon the system should run a thread's work.
enum class QualityOfService { userInitiated };

class Scheduler : public Clock {
  public:
    // Main thread; any thread may use the gate.
    virtual std::unique_ptr<Gate> makeGate() = 0;
    // Main thread. The body must end by itself once its owner asks it to.
    virtual void startThread(std::string name, QualityOfService, std::function<void()> body) = 0;
    // Main thread. A thread that serves the others for as long as they run: when they are
    // being finished, it is told to by `end`, which makes the body end.
    virtual void startServant(std::string name, QualityOfService, std::function<void()> body,
                              std::function<void()> end) = 0;
    // Main thread. Waits until every started thread has ended, the servants last. Call it
    // before taking down what those threads use.
    virtual void finishThreads() = 0;
};

}  // namespace vantrel::runtime
