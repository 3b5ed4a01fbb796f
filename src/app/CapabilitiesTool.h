// `--parse-capabilities`: shows people who debug monitors what the program makes
// of a raw capabilities string.
#pragma once

#include <istream>
#include <ostream>

namespace vantrel::app::CapabilitiesTool {

// Reads one string (a final line break is the file's, not the monitor's), treats
// its bytes as if a monitor had sent them, and prints the result as it would be
// kept: the process's exit status.
int run(std::istream& input, std::ostream& output);

}  // namespace vantrel::app::CapabilitiesTool
