// What the process tells its caller.
#pragma once

namespace vantrel::app::ExitStatus {

inline constexpr int success = 0;
// It ran, and there is no result.
inline constexpr int nothing = 1;
// It can't run: a mistake in the arguments or a file, or something is missing.
inline constexpr int mistake = 2;

}  // namespace vantrel::app::ExitStatus
