// Stops the program on a broken invariant: a mistake in the program itself,
// never something that a monitor, a file or a user did.
#pragma once

#include <string_view>

namespace vantrel::runtime {

[[noreturn]] void fatal(std::string_view what);

// Stops the program with `what` unless `holds`.
inline void require(bool holds, std::string_view what) {
    if (!holds) fatal(what);
}

}  // namespace vantrel::runtime
