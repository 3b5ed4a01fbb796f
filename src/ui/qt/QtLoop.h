// Runs a MainLoop inside Qt's event loop, and inside those that menus and popups
// open meanwhile. With nothing due there is no timer.
//
// Threads: main thread. Lifetime: the loop and its scheduler outlive it; the
// QtApplication exists before it.
#pragma once

#include <memory>

#include "runtime/MainLoop.h"
#include "runtime/WakingScheduler.h"

namespace vantrel::qt {

class QtLoop {
  public:
    // `loop` was made on `scheduler`.
    QtLoop(runtime::MainLoop& loop, runtime::WakingScheduler& scheduler);
    QtLoop(const QtLoop&) = delete;
    QtLoop& operator=(const QtLoop&) = delete;
    ~QtLoop();

    // Until QtToolkit::terminate, or a signal that asks the program to end.
    void run();
    bool hasTimer() const;

  private:
    class Pump;

    runtime::WakingScheduler& scheduler_;
    std::unique_ptr<Pump> pump_;
};

}  // namespace vantrel::qt
