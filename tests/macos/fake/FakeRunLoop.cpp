#include "macos/fake/FakeRunLoop.h"

#include <algorithm>
#include <chrono>
#include <limits>

#include "macos/fake/FakeMac.h"
#include "runtime/Fatal.h"

namespace vantrel::macos::fake {
namespace {

bool isIn(const Item& item, CFRunLoopMode mode) {
    return item.modes.contains(mode) || item.modes.contains(kCFRunLoopCommonModes);
}

// Keeps an item while it is called.
class Hold {
  public:
    explicit Hold(Item& item) : item_(item) { CFRetain(&item_); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;
    ~Hold() { CFRelease(&item_); }

  private:
    Item& item_;
};

}  // namespace

CFRunLoopMode trackingMode() { return CFSTR("NSEventTrackingRunLoopMode"); }

FakeRunLoop::FakeRunLoop(runtime::Scheduler& scheduler)
    : Object(runLoopType), scheduler_(scheduler), gate_(scheduler.makeGate()) {}

FakeRunLoop::~FakeRunLoop() {
    runtime::require(references == 1, "a run loop was released that nobody held, or is still held");
    while (!items_.empty()) invalidate(*items_.back());
}

CFAbsoluteTime FakeRunLoop::now() const {
    return epoch + std::chrono::duration<double>(scheduler_.now().time_since_epoch()).count();
}

CFRunLoopRunResult FakeRunLoop::run(CFRunLoopMode mode, CFTimeInterval seconds, bool returnsAfterSource) {
    const CFAbsoluteTime end = now() + seconds;
    for (;;) {
        observe(mode, kCFRunLoopBeforeTimers);
        observe(mode, kCFRunLoopBeforeSources);
        const bool hasPerformed = performSources(mode);
        const bool polls = hasPerformed || seconds == 0;
        if (!polls) {
            observe(mode, kCFRunLoopBeforeWaiting);
            std::optional<CFAbsoluteTime> wakeDate = nextFireDate(mode);
            if (seconds < farAway) wakeDate = std::min(wakeDate.value_or(end), end);
            std::optional<runtime::MonotonicTime> deadline;
            if (wakeDate) {
                const std::chrono::duration<double> date(*wakeDate - epoch);
                deadline = runtime::MonotonicTime(std::chrono::ceil<std::chrono::nanoseconds>(date));
            }
            ++waits_;
            if (gate_->wait(deadline) == runtime::Wake::idle) return kCFRunLoopRunFinished;
            observe(mode, kCFRunLoopAfterWaiting);
        }
        fireTimers(mode);
        if (hasPerformed && returnsAfterSource) return kCFRunLoopRunHandledSource;
        if (std::exchange(isStopped_, false)) return kCFRunLoopRunStopped;
        if (now() >= end) return kCFRunLoopRunTimedOut;
    }
}

void FakeRunLoop::add(Item& item, CFRunLoopMode mode) {
    if (!item.isValid) return;
    if (item.modes.empty()) {
        CFRetain(&item);
        items_.push_back(&item);
    }
    item.modes.insert(mode);
}

void FakeRunLoop::invalidate(Item& item) {
    item.isValid = false;
    if (std::erase(items_, &item) > 0) CFRelease(&item);
}

std::size_t FakeRunLoop::armedTimers() const {
    std::size_t count = 0;
    for (const Item* item : items_) {
        if (item->type != timerType) continue;
        if (static_cast<const Timer*>(item)->fireDate - now() < farAway) ++count;
    }
    return count;
}

template <class Kind>
std::vector<Kind*> FakeRunLoop::items(CFRunLoopMode mode, TypeID type) const {
    std::vector<Kind*> found;
    for (Item* item : items_) {
        if (item->type == type && isIn(*item, mode)) found.push_back(static_cast<Kind*>(item));
    }
    return found;
}

bool FakeRunLoop::performSources(CFRunLoopMode mode) {
    bool hasPerformed = false;
    for (Source* source : items<Source>(mode, sourceType)) {
        if (!source->isValid || !source->isSignalled.exchange(false)) continue;
        const Hold hold(*source);
        source->context.perform(source->context.info);
        hasPerformed = true;
    }
    return hasPerformed;
}

void FakeRunLoop::observe(CFRunLoopMode mode, CFRunLoopActivity activity) {
    for (Observer* observer : items<Observer>(mode, observerType)) {
        if (!observer->isValid || observer->isCalled || (observer->activities & activity) == 0) continue;
        const Hold hold(*observer);
        observer->isCalled = true;
        observer->callout(reinterpret_cast<CFRunLoopObserverRef>(observer), activity, observer->info);
        observer->isCalled = false;
        if (!observer->repeats) invalidate(*observer);
    }
}

void FakeRunLoop::fireTimers(CFRunLoopMode mode) {
    for (Timer* timer : items<Timer>(mode, timerType)) {
        if (!timer->isValid || timer->isFiring || timer->fireDate > now()) continue;
        const Hold hold(*timer);
        timer->isFiring = true;
        timer->fireDate = now() + timer->interval;
        timer->callout(reinterpret_cast<CFRunLoopTimerRef>(timer), timer->info);
        timer->isFiring = false;
        if (timer->interval == 0) invalidate(*timer);
    }
}

std::optional<CFAbsoluteTime> FakeRunLoop::nextFireDate(CFRunLoopMode mode) const {
    std::optional<CFAbsoluteTime> next;
    for (const Timer* timer : items<Timer>(mode, timerType)) {
        if (timer->isFiring || timer->fireDate - now() >= farAway) continue;
        next = std::min(next.value_or(timer->fireDate), timer->fireDate);
    }
    return next;
}

namespace {

FakeRunLoop& loop(CFRunLoopRef reference) { return live<FakeRunLoop>(reference, runLoopType); }
Calls& calls() { return FakeMac::current().calls(); }

}  // namespace
}  // namespace vantrel::macos::fake

namespace fake = vantrel::macos::fake;

extern "C" {

const CFRunLoopMode kCFRunLoopDefaultMode = CFSTR("kCFRunLoopDefaultMode");
const CFRunLoopMode kCFRunLoopCommonModes = CFSTR("kCFRunLoopCommonModes");

CFAbsoluteTime CFAbsoluteTimeGetCurrent(void) { return fake::FakeMac::current().runLoop().now(); }

CFRunLoopRef CFRunLoopGetMain(void) {
    return reinterpret_cast<CFRunLoopRef>(&fake::FakeMac::current().runLoop());
}
CFRunLoopRunResult CFRunLoopRunInMode(CFRunLoopMode mode, CFTimeInterval seconds, Boolean returns) {
    return fake::FakeMac::current().runLoop().run(mode, seconds, returns != 0);
}
void CFRunLoopWakeUp(CFRunLoopRef loop) { fake::loop(loop).wakeUp(); }
void CFRunLoopStop(CFRunLoopRef loop) { fake::loop(loop).stop(); }

void CFRunLoopAddSource(CFRunLoopRef loop, CFRunLoopSourceRef source, CFRunLoopMode mode) {
    fake::loop(loop).add(fake::live<fake::Source>(source, fake::sourceType), mode);
}
void CFRunLoopAddObserver(CFRunLoopRef loop, CFRunLoopObserverRef observer, CFRunLoopMode mode) {
    fake::loop(loop).add(fake::live<fake::Observer>(observer, fake::observerType), mode);
}
void CFRunLoopAddTimer(CFRunLoopRef loop, CFRunLoopTimerRef timer, CFRunLoopMode mode) {
    fake::loop(loop).add(fake::live<fake::Timer>(timer, fake::timerType), mode);
}

CFRunLoopSourceRef CFRunLoopSourceCreate(CFAllocatorRef, CFIndex, CFRunLoopSourceContext* context) {
    if (fake::calls().fails("CFRunLoopSourceCreate")) return nullptr;
    return (CFRunLoopSourceRef)fake::born(new fake::Source(*context));
}
void CFRunLoopSourceInvalidate(CFRunLoopSourceRef source) {
    fake::FakeMac::current().runLoop().invalidate(fake::live<fake::Source>(source, fake::sourceType));
}
void CFRunLoopSourceSignal(CFRunLoopSourceRef source) {
    fake::live<fake::Source>(source, fake::sourceType).isSignalled = true;
}

CFRunLoopObserverRef CFRunLoopObserverCreate(CFAllocatorRef, CFOptionFlags activities, Boolean repeats,
                                             CFIndex, CFRunLoopObserverCallBack callout,
                                             CFRunLoopObserverContext* context) {
    if (fake::calls().fails("CFRunLoopObserverCreate")) return nullptr;
    auto* observer = new fake::Observer;
    observer->activities = activities;
    observer->repeats = repeats != 0;
    observer->callout = callout;
    observer->info = context->info;
    return (CFRunLoopObserverRef)fake::born(observer);
}
void CFRunLoopObserverInvalidate(CFRunLoopObserverRef observer) {
    fake::FakeMac::current().runLoop().invalidate(fake::live<fake::Observer>(observer, fake::observerType));
}

CFRunLoopTimerRef CFRunLoopTimerCreate(CFAllocatorRef, CFAbsoluteTime fireDate, CFTimeInterval interval,
                                       CFOptionFlags, CFIndex, CFRunLoopTimerCallBack callout,
                                       CFRunLoopTimerContext* context) {
    if (fake::calls().fails("CFRunLoopTimerCreate")) return nullptr;
    auto* timer = new fake::Timer;
    timer->fireDate = fireDate;
    timer->interval = interval;
    timer->callout = callout;
    timer->info = context->info;
    return (CFRunLoopTimerRef)fake::born(timer);
}
CFAbsoluteTime CFRunLoopTimerGetNextFireDate(CFRunLoopTimerRef timer) {
    return fake::live<fake::Timer>(timer, fake::timerType).fireDate;
}
void CFRunLoopTimerSetNextFireDate(CFRunLoopTimerRef timer, CFAbsoluteTime fireDate) {
    fake::live<fake::Timer>(timer, fake::timerType).fireDate = fireDate;
}
void CFRunLoopTimerInvalidate(CFRunLoopTimerRef timer) {
    fake::FakeMac::current().runLoop().invalidate(fake::live<fake::Timer>(timer, fake::timerType));
}

}  // extern "C"
