// Stand-in for the platform's header of this name.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef const struct CF_BRIDGED_TYPE(NSData) __CFData* CFDataRef;

CFTypeID CFDataGetTypeID(void);
CFDataRef _Nullable CFDataCreate(CFAllocatorRef _Nullable allocator, const UInt8* _Nullable bytes,
                                 CFIndex length) CF_RETURNS_RETAINED;
CFIndex CFDataGetLength(CFDataRef theData);
const UInt8* _Nullable CFDataGetBytePtr(CFDataRef theData);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
