// Stand-in for the platform's header of this name.
#pragma once

#include <CoreFoundation/CFBase.h>
#include <CoreFoundation/CFString.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef struct CF_BRIDGED_MUTABLE_TYPE(id) __CFBundle* CFBundleRef;

CFBundleRef _Nullable CFBundleGetMainBundle(void) CF_RETURNS_NOT_RETAINED;
// `value` is the answer for a key that is not in the table; no table is
// "Localizable".
CFStringRef _Nullable CFBundleCopyLocalizedString(CFBundleRef bundle, CFStringRef _Nullable key,
                                                  CFStringRef _Nullable value,
                                                  CFStringRef _Nullable tableName) CF_RETURNS_RETAINED;

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
