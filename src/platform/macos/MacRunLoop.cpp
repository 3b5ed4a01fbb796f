#include "platform/macos/MacRunLoop.h"

#include <algorithm>
#include <chrono>
#include <optional>

#include "runtime/Fatal.h"

namespace vantrel::macos {
namespace {

// A century and more: a timer that repeats stays valid when it has fired, and one
// set as far ahead waits for nothing.
constexpr CFTimeInterval never = 4e9;

constexpr CFIndex firstOfItsKind = 0;

}  // namespace

MacRunLoop::MacRunLoop(runtime::MainLoop& loop, runtime::WakingScheduler& scheduler)
    : loop_(loop), scheduler_(scheduler), runLoop_(CFRunLoopGetMain()) {
    CFRunLoopSourceContext source{};
    source.info = this;
    source.perform = [](void* self) { static_cast<MacRunLoop*>(self)->runPass(); };
    source_ = CFHandle(CFRunLoopSourceCreate(kCFAllocatorDefault, firstOfItsKind, &source));

    // A timer and an observer are not called again while they are being called, a
    // source is: so passes go on in a run loop that one of them has opened.
    CFRunLoopTimerContext timer{};
    timer.info = this;
    timer_ = CFHandle(CFRunLoopTimerCreate(
        kCFAllocatorDefault, CFAbsoluteTimeGetCurrent() + never, never, 0, firstOfItsKind,
        [](CFRunLoopTimerRef, void* self) { static_cast<MacRunLoop*>(self)->wake(); }, &timer));

    // Whatever the run loop has been doing may have made something due, or slept
    // through the time that the timer was set for.
    CFRunLoopObserverContext observer{};
    observer.info = this;
    observer_ = CFHandle(CFRunLoopObserverCreate(
        kCFAllocatorDefault, kCFRunLoopBeforeWaiting, true, firstOfItsKind,
        [](CFRunLoopObserverRef, CFRunLoopActivity, void* self) { static_cast<MacRunLoop*>(self)->arm(); },
        &observer));

    runtime::require(source_ && timer_ && observer_, "the system's run loop takes no main loop");
    CFRunLoopAddSource(runLoop_, source_.get(), kCFRunLoopCommonModes);
    CFRunLoopAddTimer(runLoop_, timer_.get(), kCFRunLoopCommonModes);
    CFRunLoopAddObserver(runLoop_, observer_.get(), kCFRunLoopCommonModes);
    scheduler_.onOpen([this] { wake(); });
    wake();
}

MacRunLoop::~MacRunLoop() {
    scheduler_.onOpen({});
    CFRunLoopObserverInvalidate(observer_.get());
    CFRunLoopTimerInvalidate(timer_.get());
    CFRunLoopSourceInvalidate(source_.get());
}

void MacRunLoop::wake() {
    CFRunLoopSourceSignal(source_.get());
    CFRunLoopWakeUp(runLoop_);
}

void MacRunLoop::runPass() {
    loop_.runDue();
    arm();
}

// Due work waits for a timer of no length, so that the run loop's other sources get
// their turn between two passes.
void MacRunLoop::arm() {
    const std::optional<runtime::MonotonicTime> due = loop_.nextDue();
    if (!due && !hasTimer_) return;
    hasTimer_ = due.has_value();
    const CFAbsoluteTime now = CFAbsoluteTimeGetCurrent();
    if (!due) return CFRunLoopTimerSetNextFireDate(timer_.get(), now + never);
    const std::chrono::duration<double> wait = *due - scheduler_.now();
    CFRunLoopTimerSetNextFireDate(timer_.get(), now + std::clamp(wait.count(), 0.0, never));
}

}  // namespace vantrel::macos
