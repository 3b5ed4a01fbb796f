// Stand-in for the platform's header of this name.
#pragma once

#include <CoreFoundation/CFBase.h>
#include <CoreFoundation/CFDate.h>
#include <CoreFoundation/CFString.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef CFStringRef CFRunLoopMode;

typedef struct CF_BRIDGED_MUTABLE_TYPE(id) __CFRunLoop* CFRunLoopRef;
typedef struct CF_BRIDGED_MUTABLE_TYPE(id) __CFRunLoopSource* CFRunLoopSourceRef;
typedef struct CF_BRIDGED_MUTABLE_TYPE(id) __CFRunLoopObserver* CFRunLoopObserverRef;
typedef struct CF_BRIDGED_MUTABLE_TYPE(NSTimer) __CFRunLoopTimer* CFRunLoopTimerRef;

typedef CF_ENUM(SInt32, CFRunLoopRunResult) {
    kCFRunLoopRunFinished = 1,
    kCFRunLoopRunStopped = 2,
    kCFRunLoopRunTimedOut = 3,
    kCFRunLoopRunHandledSource = 4,
};

typedef CF_OPTIONS(CFOptionFlags, CFRunLoopActivity) {
    kCFRunLoopEntry = (1UL << 0),
    kCFRunLoopBeforeTimers = (1UL << 1),
    kCFRunLoopBeforeSources = (1UL << 2),
    kCFRunLoopBeforeWaiting = (1UL << 5),
    kCFRunLoopAfterWaiting = (1UL << 6),
    kCFRunLoopExit = (1UL << 7),
    kCFRunLoopAllActivities = 0x0FFFFFFFU,
};

extern const CFRunLoopMode kCFRunLoopDefaultMode;
extern const CFRunLoopMode kCFRunLoopCommonModes;

CFRunLoopRef CFRunLoopGetMain(void) CF_RETURNS_NOT_RETAINED;
CFRunLoopRunResult CFRunLoopRunInMode(CFRunLoopMode mode, CFTimeInterval seconds,
                                      Boolean returnAfterSourceHandled);
void CFRunLoopWakeUp(CFRunLoopRef rl);
void CFRunLoopStop(CFRunLoopRef rl);
void CFRunLoopAddSource(CFRunLoopRef rl, CFRunLoopSourceRef source, CFRunLoopMode mode);
void CFRunLoopAddObserver(CFRunLoopRef rl, CFRunLoopObserverRef observer, CFRunLoopMode mode);
void CFRunLoopAddTimer(CFRunLoopRef rl, CFRunLoopTimerRef timer, CFRunLoopMode mode);

typedef struct {
    CFIndex version;
    void* _Nullable info;
    const void* _Nullable (*_Nullable retain)(const void* info);
    void (*_Nullable release)(const void* info);
    CFStringRef _Nullable (*_Nullable copyDescription)(const void* info);
    Boolean (*_Nullable equal)(const void* info1, const void* info2);
    CFHashCode (*_Nullable hash)(const void* info);
    void (*_Nullable schedule)(void* _Nullable info, CFRunLoopRef rl, CFRunLoopMode mode);
    void (*_Nullable cancel)(void* _Nullable info, CFRunLoopRef rl, CFRunLoopMode mode);
    void (*_Nullable perform)(void* _Nullable info);
} CFRunLoopSourceContext;

CFRunLoopSourceRef _Nullable CFRunLoopSourceCreate(CFAllocatorRef _Nullable allocator, CFIndex order,
                                                   CFRunLoopSourceContext* context) CF_RETURNS_RETAINED;
void CFRunLoopSourceInvalidate(CFRunLoopSourceRef source);
void CFRunLoopSourceSignal(CFRunLoopSourceRef source);

typedef struct {
    CFIndex version;
    void* _Nullable info;
    const void* _Nullable (*_Nullable retain)(const void* _Nullable info);
    void (*_Nullable release)(const void* _Nullable info);
    CFStringRef _Nullable (*_Nullable copyDescription)(const void* _Nullable info);
} CFRunLoopObserverContext;
typedef void (*CFRunLoopObserverCallBack)(CFRunLoopObserverRef observer, CFRunLoopActivity activity,
                                          void* _Nullable info);

CFRunLoopObserverRef _Nullable CFRunLoopObserverCreate(
    CFAllocatorRef _Nullable allocator, CFOptionFlags activities, Boolean repeats, CFIndex order,
    CFRunLoopObserverCallBack callout, CFRunLoopObserverContext* _Nullable context) CF_RETURNS_RETAINED;
void CFRunLoopObserverInvalidate(CFRunLoopObserverRef observer);

typedef struct {
    CFIndex version;
    void* _Nullable info;
    const void* _Nullable (*_Nullable retain)(const void* _Nullable info);
    void (*_Nullable release)(const void* _Nullable info);
    CFStringRef _Nullable (*_Nullable copyDescription)(const void* _Nullable info);
} CFRunLoopTimerContext;
typedef void (*CFRunLoopTimerCallBack)(CFRunLoopTimerRef timer, void* _Nullable info);

CFRunLoopTimerRef _Nullable CFRunLoopTimerCreate(
    CFAllocatorRef _Nullable allocator, CFAbsoluteTime fireDate, CFTimeInterval interval, CFOptionFlags flags,
    CFIndex order, CFRunLoopTimerCallBack callout,
    CFRunLoopTimerContext* _Nullable context) CF_RETURNS_RETAINED;
CFAbsoluteTime CFRunLoopTimerGetNextFireDate(CFRunLoopTimerRef timer);
void CFRunLoopTimerSetNextFireDate(CFRunLoopTimerRef timer, CFAbsoluteTime fireDate);
void CFRunLoopTimerInvalidate(CFRunLoopTimerRef timer);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
