// The interface in the states that matter, as pictures: for the README, and for
// people who look at what they changed. In virtual time.
// Threads: main thread. Needs a QtApplication. Errors: one line on `errors`.
#pragma once

#include <ostream>
#include <string>

namespace vantrel::app::Pictures {

// Each scene light and dark, once and twice as large. Makes the folder if it is
// missing; gives the exit status.
int draw(const std::string& folder, std::ostream& output, std::ostream& errors);

}  // namespace vantrel::app::Pictures
