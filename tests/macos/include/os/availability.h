// API_AVAILABLE(macos(14.0)) and the like, for the one platform that matters here.
#pragma once
#define STANDIN_AVAILABLE_macos(version) macos, introduced = version
#define STANDIN_DEPRECATED_macos(from, to) macos, introduced = from, deprecated = to
#define API_AVAILABLE(platform) __attribute__((availability(STANDIN_AVAILABLE_##platform)))
#define API_DEPRECATED(text, platform) __attribute__((availability(STANDIN_DEPRECATED_##platform, message = text)))
#define API_TO_BE_DEPRECATED 100000
