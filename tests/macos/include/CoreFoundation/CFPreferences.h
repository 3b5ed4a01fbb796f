// Stand-in for the platform's header of this name.
#pragma once

#include <CoreFoundation/CFBase.h>
#include <CoreFoundation/CFString.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

extern const CFStringRef kCFPreferencesCurrentApplication;

CFPropertyListRef _Nullable CFPreferencesCopyAppValue(CFStringRef key,
                                                      CFStringRef applicationID) CF_RETURNS_RETAINED;
// Null takes the value away.
void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef _Nullable value, CFStringRef applicationID);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
