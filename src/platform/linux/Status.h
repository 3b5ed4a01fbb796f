// What the substitutes of the system's functions return, with the values that macOS gives
// them (CGError.h); transfers return an errno.
#pragma once

#include <cstdint>

namespace vantrel::linux::Status {

inline constexpr std::int32_t success = 0;
// kCGErrorFailure and kCGErrorIllegalArgument.
inline constexpr std::int32_t failure = 1000;
inline constexpr std::int32_t illegalArgument = 1001;

}  // namespace vantrel::linux::Status
