// Stand-in for the platform's header of this name: only what is used here, with
// the documented signatures, nullability and ownership.
#pragma once

#include <os/availability.h>
#include <stdint.h>

#ifdef __cplusplus
#define CF_EXTERN_C_BEGIN extern "C" {
#define CF_EXTERN_C_END }
#else
#define CF_EXTERN_C_BEGIN
#define CF_EXTERN_C_END
#endif

#ifdef __clang__
#define CF_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define CF_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#define CF_RETURNS_RETAINED __attribute__((cf_returns_retained))
#define CF_RETURNS_NOT_RETAINED __attribute__((cf_returns_not_retained))
#define CF_BRIDGED_TYPE(type) __attribute__((objc_bridge(type)))
#define CF_BRIDGED_MUTABLE_TYPE(type) __attribute__((objc_bridge_mutable(type)))
#define CF_ENUM(type, name) \
    enum name : type name;  \
    enum name : type
#define CF_OPTIONS(type, name) \
    type name;                 \
    enum : type
#else
// A compiler that knows no nullability.
#define _Nullable
#define _Nonnull
#define CF_ASSUME_NONNULL_BEGIN
#define CF_ASSUME_NONNULL_END
#define CF_RETURNS_RETAINED
#define CF_RETURNS_NOT_RETAINED
#define CF_BRIDGED_TYPE(type)
#define CF_BRIDGED_MUTABLE_TYPE(type)
#define CF_ENUM(type, name) \
    type name;              \
    enum : type
#define CF_OPTIONS(type, name) \
    type name;                 \
    enum : type
#endif

#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef unsigned char Boolean;
typedef uint8_t UInt8;
typedef uint16_t UInt16;
typedef uint32_t UInt32;
typedef int32_t SInt32;
typedef int64_t SInt64;
typedef UInt16 UniChar;

typedef unsigned long CFTypeID;
typedef unsigned long CFOptionFlags;
typedef unsigned long CFHashCode;
typedef long CFIndex;

typedef const void* CFTypeRef;
typedef const struct CF_BRIDGED_TYPE(NSString) __CFString* CFStringRef;
typedef CFTypeRef CFPropertyListRef;
typedef const struct __CFAllocator* CFAllocatorRef;

typedef struct {
    CFIndex location;
    CFIndex length;
} CFRange;

static inline CFRange CFRangeMake(CFIndex location, CFIndex length) {
    CFRange range;
    range.location = location;
    range.length = length;
    return range;
}

extern const CFAllocatorRef _Nullable kCFAllocatorDefault;

CFTypeID CFGetTypeID(CFTypeRef cf);
CFTypeRef CFRetain(CFTypeRef cf);
void CFRelease(CFTypeRef cf);
CFIndex CFGetRetainCount(CFTypeRef cf);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
