// Status codes of the system's functions that the simulation returns, with the
// values that the system gives them (IOReturn.h, CGError.h). 0 is success.
#pragma once

#include <cstdint>

namespace vantrel::simulated::Status {

inline constexpr std::int32_t success = 0;

// kIOReturnNotResponding: nobody acknowledged on the bus.
inline constexpr auto notResponding = static_cast<std::int32_t>(0xE00002EDU);
// kIOReturnNoDevice: the handle's link has gone.
inline constexpr auto noDevice = static_cast<std::int32_t>(0xE00002C0U);
// kIOReturnBadArgument.
inline constexpr auto badArgument = static_cast<std::int32_t>(0xE00002C2U);

// kCGErrorFailure and kCGErrorIllegalArgument.
inline constexpr std::int32_t displayFailure = 1000;
inline constexpr std::int32_t illegalDisplayArgument = 1001;

}  // namespace vantrel::simulated::Status
