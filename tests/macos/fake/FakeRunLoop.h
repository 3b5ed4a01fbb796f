// The main thread's run loop in a scheduler's time: sources, timers and observers in
// modes, with the order and the rules of reentrance of the Mac's.
//
// Threads: wakeUp and signalling from any, the rest on the main thread.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <atomic>
#include <cstddef>
#include <memory>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "macos/fake/Objects.h"
#include "runtime/Scheduler.h"

namespace vantrel::macos::fake {

// What run loops of every kind of item have in common.
struct Item : Object {
    using Object::Object;
    // Those it was added to.
    std::set<CFRunLoopMode> modes;
    bool isValid = true;
};

struct Source : Item {
    explicit Source(const CFRunLoopSourceContext& given) : Item(sourceType), context(given) {}
    const CFRunLoopSourceContext context;
    std::atomic<bool> isSignalled = false;
};

struct Timer : Item {
    Timer() : Item(timerType) {}
    CFAbsoluteTime fireDate = 0;
    CFTimeInterval interval = 0;
    CFRunLoopTimerCallBack callout = nullptr;
    void* info = nullptr;
    bool isFiring = false;
};

struct Observer : Item {
    Observer() : Item(observerType) {}
    CFOptionFlags activities = 0;
    bool repeats = true;
    CFRunLoopObserverCallBack callout = nullptr;
    void* info = nullptr;
    bool isCalled = false;
};

class FakeRunLoop : public Object {
  public:
    // A date as far away as this is never.
    static constexpr CFTimeInterval farAway = 1e9;
    // The scheduler's clock and the one of dates begin at different moments.
    static constexpr CFTimeInterval epoch = -4096;

    explicit FakeRunLoop(runtime::Scheduler& scheduler);
    ~FakeRunLoop() override;

    CFAbsoluteTime now() const;
    // Also ends when nothing is left to happen, in virtual time.
    CFRunLoopRunResult run(CFRunLoopMode mode, CFTimeInterval seconds, bool returnsAfterSource);
    void wakeUp() { gate_->open(); }
    void stop() { isStopped_ = true; }
    // Holds the item until it is invalidated.
    void add(Item& item, CFRunLoopMode mode);
    void invalidate(Item& item);

    // What was added and not invalidated.
    std::size_t items() const { return items_.size(); }
    // Timers that will fire.
    std::size_t armedTimers() const;
    // How often it went to sleep.
    unsigned waits() const { return waits_; }

  private:
    bool performSources(CFRunLoopMode mode);
    void observe(CFRunLoopMode mode, CFRunLoopActivity activity);
    void fireTimers(CFRunLoopMode mode);
    std::optional<CFAbsoluteTime> nextFireDate(CFRunLoopMode mode) const;
    template <class Kind>
    std::vector<Kind*> items(CFRunLoopMode mode, TypeID type) const;

    runtime::Scheduler& scheduler_;
    std::unique_ptr<runtime::Gate> gate_;
    std::vector<Item*> items_;
    bool isStopped_ = false;
    unsigned waits_ = 0;
};

// Where a menu or a slider is tracked; a common mode, as the default one is.
CFRunLoopMode trackingMode();

}  // namespace vantrel::macos::fake
