// The macros and plain types of Objective-C and Foundation.
#pragma once
#include <TargetConditionals.h>
#include <limits.h>
#include <math.h>
#include <os/availability.h>
#include <stdarg.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#ifndef API_DEPRECATED
#define STANDIN_DEPRECATED_macos(from, to) macos, introduced = from, deprecated = to
#define API_DEPRECATED(text, platform) \
    __attribute__((availability(STANDIN_DEPRECATED_##platform, message = text)))
#endif

#ifdef __cplusplus
#define FOUNDATION_EXTERN extern "C"
#else
#define FOUNDATION_EXTERN extern
#endif
#define FOUNDATION_EXPORT FOUNDATION_EXTERN

#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#define NS_DESIGNATED_INITIALIZER __attribute__((objc_designated_initializer))
#define NS_UNAVAILABLE __attribute__((unavailable))
#define NS_REQUIRES_SUPER __attribute__((objc_requires_super))
#define NS_NOESCAPE __attribute__((noescape))
#define NS_RETURNS_RETAINED __attribute__((ns_returns_retained))
#define NS_RETURNS_NOT_RETAINED __attribute__((ns_returns_not_retained))
#define NS_RETURNS_INNER_POINTER __attribute__((objc_returns_inner_pointer))
#define NS_FORMAT_FUNCTION(string, first) __attribute__((format(__NSString__, string, first)))
#define NS_FORMAT_ARGUMENT(argument) __attribute__((format_arg(argument)))
#define NS_REQUIRES_NIL_TERMINATION __attribute__((sentinel(0, 1)))
#define NS_ROOT_CLASS __attribute__((objc_root_class))
#define NS_WARN_UNUSED_RESULT __attribute__((warn_unused_result))
#ifndef CF_RETURNS_NOT_RETAINED
#define CF_RETURNS_NOT_RETAINED __attribute__((cf_returns_not_retained))
#endif
#define NS_TYPED_ENUM
#define NS_TYPED_EXTENSIBLE_ENUM
#define NS_STRING_ENUM
#define NS_SWIFT_NAME(name)
#define NS_SWIFT_UI_ACTOR
#define NS_INLINE static __inline__ __attribute__((always_inline))

#define NS_ENUM(type, name)                                          \
    enum __attribute__((enum_extensibility(open))) name : type name; \
    enum __attribute__((enum_extensibility(open))) name : type
#define NS_CLOSED_ENUM(type, name)                                     \
    enum __attribute__((enum_extensibility(closed))) name : type name; \
    enum __attribute__((enum_extensibility(closed))) name : type
// In C++ a set of options is a plain number, so that | needs no cast.
#ifdef __cplusplus
#define NS_OPTIONS(type, name) \
    type name;                 \
    enum __attribute__((flag_enum, enum_extensibility(open))) : name
#else
#define NS_OPTIONS(type, name)                                                  \
    enum __attribute__((flag_enum, enum_extensibility(open))) name : type name; \
    enum __attribute__((flag_enum, enum_extensibility(open))) name : type
#endif

typedef bool BOOL;
#define OBJC_BOOL_IS_BOOL 1
#define YES __objc_yes
#define NO __objc_no
#ifdef __cplusplus
#define nil nullptr
#define Nil nullptr
#else
#define nil ((void*)0)
#define Nil ((void*)0)
#endif
typedef id _Nullable (*IMP)(id _Nonnull, SEL _Nonnull, ...);

typedef long NSInteger;
typedef unsigned long NSUInteger;
#define NSIntegerMax LONG_MAX
#define NSIntegerMin LONG_MIN
#define NSUIntegerMax ULONG_MAX
enum { NSNotFound = NSIntegerMax };

typedef double NSTimeInterval;
typedef struct _NSZone NSZone;
typedef unsigned short unichar;

@class NSString, NSMethodSignature, NSInvocation, NSCoder;

typedef NS_CLOSED_ENUM(NSInteger, NSComparisonResult) {
    NSOrderedAscending = -1L,
    NSOrderedSame,
    NSOrderedDescending,
};
typedef NS_ENUM(NSInteger, NSQualityOfService) {
    NSQualityOfServiceUserInteractive = 0x21,
    NSQualityOfServiceUserInitiated = 0x19,
    NSQualityOfServiceUtility = 0x11,
    NSQualityOfServiceBackground = 0x09,
    NSQualityOfServiceDefault = -1,
};
typedef NS_OPTIONS(NSUInteger, NSSortOptions) { NSSortConcurrent = 1UL << 0, NSSortStable = 1UL << 4 };

#define MIN(a, b) ((a) < (b) ? (a) : (b))
#define MAX(a, b) ((a) > (b) ? (a) : (b))

FOUNDATION_EXPORT void NSLog(NSString* _Nonnull format, ...) NS_FORMAT_FUNCTION(1, 2);
FOUNDATION_EXPORT NSString* _Nonnull NSStringFromSelector(SEL _Nonnull selector);
FOUNDATION_EXPORT SEL _Nonnull NSSelectorFromString(NSString* _Nonnull name);
FOUNDATION_EXPORT NSString* _Nonnull NSStringFromClass(Class _Nonnull aClass);
FOUNDATION_EXPORT Class _Nullable NSClassFromString(NSString* _Nonnull name);
