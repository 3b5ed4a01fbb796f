// Stand-in for the platform's header of this name. The tables of callbacks are
// opaque here.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef struct {
    CFIndex version;
} CFDictionaryKeyCallBacks;
typedef struct {
    CFIndex version;
} CFDictionaryValueCallBacks;
// Retain and release what they hold.
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;

typedef const struct CF_BRIDGED_TYPE(NSDictionary) __CFDictionary* CFDictionaryRef;

CFTypeID CFDictionaryGetTypeID(void);
CFDictionaryRef _Nullable CFDictionaryCreate(
    CFAllocatorRef _Nullable allocator, const void* _Nullable* _Nullable keys,
    const void* _Nullable* _Nullable values, CFIndex numValues,
    const CFDictionaryKeyCallBacks* _Nullable keyCallBacks,
    const CFDictionaryValueCallBacks* _Nullable valueCallBacks) CF_RETURNS_RETAINED;
CFIndex CFDictionaryGetCount(CFDictionaryRef theDict);
void CFDictionaryGetKeysAndValues(CFDictionaryRef theDict, const void* _Nullable* _Nullable keys,
                                  const void* _Nullable* _Nullable values);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
