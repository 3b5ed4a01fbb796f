// Stand-in for the platform's header of this name.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef const struct CF_BRIDGED_TYPE(NSNumber) __CFBoolean* CFBooleanRef;
extern const CFBooleanRef kCFBooleanTrue;
extern const CFBooleanRef kCFBooleanFalse;
CFTypeID CFBooleanGetTypeID(void);

typedef CF_ENUM(CFIndex, CFNumberType) {
    kCFNumberSInt8Type = 1,
    kCFNumberSInt16Type = 2,
    kCFNumberSInt32Type = 3,
    kCFNumberSInt64Type = 4,
    kCFNumberFloat32Type = 5,
    kCFNumberFloat64Type = 6,
    kCFNumberCharType = 7,
    kCFNumberShortType = 8,
    kCFNumberIntType = 9,
    kCFNumberLongType = 10,
    kCFNumberLongLongType = 11,
    kCFNumberFloatType = 12,
    kCFNumberDoubleType = 13,
    kCFNumberCFIndexType = 14,
    kCFNumberNSIntegerType = 15,
    kCFNumberCGFloatType = 16,
    kCFNumberMaxType = 16,
};

typedef const struct CF_BRIDGED_TYPE(NSNumber) __CFNumber* CFNumberRef;

CFTypeID CFNumberGetTypeID(void);
CFNumberRef _Nullable CFNumberCreate(CFAllocatorRef _Nullable allocator, CFNumberType theType,
                                     const void* valuePtr) CF_RETURNS_RETAINED;
CFNumberType CFNumberGetType(CFNumberRef number);
// False when the value doesn't fit into that type without loss.
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType theType, void* _Nullable valuePtr);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
