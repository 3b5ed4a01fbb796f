// Stand-in for the platform's header of this name.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN

// Seconds.
typedef double CFTimeInterval;
typedef CFTimeInterval CFAbsoluteTime;

CFAbsoluteTime CFAbsoluteTimeGetCurrent(void);

CF_EXTERN_C_END
