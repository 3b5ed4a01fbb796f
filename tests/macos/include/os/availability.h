// Stand-in: availability of one platform, e.g. API_AVAILABLE(macos(12.0)).
#pragma once

#ifdef __clang__
#define API_AVAILABILITY_macos(version) macos, introduced = version
#define API_AVAILABLE(platform) __attribute__((availability(API_AVAILABILITY_##platform)))
#else
#define API_AVAILABLE(platform)
#endif
