// Runs the storms of many seeds in several processes: the simulated computer is
// one per process.
#pragma once

#include <cstdint>
#include <string>

#include "storms/Seen.h"

namespace vantrel::storms {

struct StormJobs {
    std::uint64_t first = 1;
    std::uint64_t count = 2000;
    unsigned jobs = 2;
    // Also after a failure.
    bool keepsGoing = false;
    // What replays one seed, without the seed.
    std::string replay;

    // Prints progress, failures and what was seen. True when nothing failed.
    bool run() const;
};

}  // namespace vantrel::storms
