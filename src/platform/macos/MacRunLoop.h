// Runs a MainLoop inside the main thread's run loop, and inside those that menus and
// sliders run while they are tracked. With nothing due no timer fires.
//
// Threads: main thread. Lifetime: the loop and its scheduler outlive it.
// Errors: a system that makes no source, timer or observer stops the program.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include "platform/macos/CFHandle.h"
#include "runtime/MainLoop.h"
#include "runtime/WakingScheduler.h"

namespace vantrel::macos {

class MacRunLoop {
  public:
    // `loop` was made on `scheduler`.
    MacRunLoop(runtime::MainLoop& loop, runtime::WakingScheduler& scheduler);
    MacRunLoop(const MacRunLoop&) = delete;
    MacRunLoop& operator=(const MacRunLoop&) = delete;
    ~MacRunLoop();

    // Whether a timer waits for what is due next.
    bool hasTimer() const { return hasTimer_; }

  private:
    // Any thread.
    void wake();
    void runPass();
    void arm();

    runtime::MainLoop& loop_;
    runtime::WakingScheduler& scheduler_;
    CFRunLoopRef runLoop_;
    CFHandle<CFRunLoopSourceRef> source_;
    CFHandle<CFRunLoopTimerRef> timer_;
    CFHandle<CFRunLoopObserverRef> observer_;
    bool hasTimer_ = false;
};

}  // namespace vantrel::macos
