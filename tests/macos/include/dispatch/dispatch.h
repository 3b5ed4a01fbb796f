// Stand-in for <dispatch/dispatch.h>: queues, time, once, semaphores and timers.
#pragma once
#include <pthread/qos.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#pragma clang assume_nonnull begin
#ifdef __cplusplus
extern "C" {
#endif

// In Objective-C these are objects that ARC counts.
#ifdef __OBJC__
#define STANDIN_DISPATCH_DECL(name) \
    @protocol OS_                   \
    ##name @end                     \
    typedef id<OS_##name> name##_t
#define STANDIN_DISPATCH_GLOBAL(type, object) ((__bridge type)(void*)&(object))
#else
#define STANDIN_DISPATCH_DECL(name) typedef struct name##_s* name##_t
#define STANDIN_DISPATCH_GLOBAL(type, object) ((type)(void*)&(object))
#endif

STANDIN_DISPATCH_DECL(dispatch_queue);
STANDIN_DISPATCH_DECL(dispatch_group);
STANDIN_DISPATCH_DECL(dispatch_semaphore);
STANDIN_DISPATCH_DECL(dispatch_source);
STANDIN_DISPATCH_DECL(dispatch_queue_attr);

#ifdef __BLOCKS__
typedef void (^dispatch_block_t)(void);
#endif
typedef void (*dispatch_function_t)(void* _Nullable);
typedef uint64_t dispatch_time_t;
typedef long dispatch_once_t;
typedef unsigned int dispatch_qos_class_t;

#define DISPATCH_TIME_NOW (0ull)
#define DISPATCH_TIME_FOREVER (~0ull)
#define NSEC_PER_SEC 1000000000ull
#define NSEC_PER_MSEC 1000000ull
#define USEC_PER_SEC 1000000ull
#define NSEC_PER_USEC 1000ull

// The real one is a structure; nothing but its address matters.
extern char _dispatch_main_q;
static inline __attribute__((always_inline)) dispatch_queue_t dispatch_get_main_queue(void) {
    return STANDIN_DISPATCH_GLOBAL(dispatch_queue_t, _dispatch_main_q);
}
#define DISPATCH_QUEUE_SERIAL NULL

dispatch_queue_t dispatch_get_global_queue(intptr_t identifier, uintptr_t flags);
__attribute__((ns_returns_retained)) dispatch_queue_t dispatch_queue_create(
    const char* _Nullable label, dispatch_queue_attr_t _Nullable attr);
void dispatch_async_f(dispatch_queue_t queue, void* _Nullable context, dispatch_function_t work);
void dispatch_sync_f(dispatch_queue_t queue, void* _Nullable context, dispatch_function_t work);
void dispatch_after_f(dispatch_time_t when, dispatch_queue_t queue, void* _Nullable context,
                      dispatch_function_t work);
#ifdef __BLOCKS__
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
void dispatch_sync(dispatch_queue_t queue, __attribute__((noescape)) dispatch_block_t block);
void dispatch_after(dispatch_time_t when, dispatch_queue_t queue, dispatch_block_t block);
void dispatch_once(dispatch_once_t* predicate, __attribute__((noescape)) dispatch_block_t block);
#endif
dispatch_time_t dispatch_time(dispatch_time_t when, int64_t delta);
dispatch_time_t dispatch_walltime(const struct timespec* _Nullable when, int64_t delta);

__attribute__((ns_returns_retained)) dispatch_semaphore_t dispatch_semaphore_create(intptr_t value);
intptr_t dispatch_semaphore_signal(dispatch_semaphore_t semaphore);
intptr_t dispatch_semaphore_wait(dispatch_semaphore_t semaphore, dispatch_time_t timeout);

typedef const struct dispatch_source_type_s* dispatch_source_type_t;
extern const struct dispatch_source_type_s _dispatch_source_type_timer;
#define DISPATCH_SOURCE_TYPE_TIMER (&_dispatch_source_type_timer)
__attribute__((ns_returns_retained)) dispatch_source_t dispatch_source_create(
    dispatch_source_type_t type, uintptr_t handle, uintptr_t mask, dispatch_queue_t _Nullable queue);
void dispatch_source_set_timer(dispatch_source_t source, dispatch_time_t start, uint64_t interval,
                               uint64_t leeway);
void dispatch_source_set_event_handler_f(dispatch_source_t source, dispatch_function_t _Nullable handler);
#ifdef __BLOCKS__
void dispatch_source_set_event_handler(dispatch_source_t source, dispatch_block_t _Nullable handler);
#endif
void dispatch_source_cancel(dispatch_source_t source);
#ifdef __OBJC__
void dispatch_resume(id object);
void dispatch_suspend(id object);
#endif
__attribute__((noreturn)) void dispatch_main(void);

#ifdef __cplusplus
}
#endif
#pragma clang assume_nonnull end
