// Chance that is the same on every machine: the same seed gives the same numbers
// with every compiler and standard library (splitmix64, no std distributions).
// Threads: one at a time.
#pragma once

#include <cstdint>

#include "platform/simulated/Personality.h"

namespace vantrel::simulated {

class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    // A generator for one part of the simulation, unmoved by what others draw.
    Random fork(std::uint64_t stream) const;

    std::uint64_t next();
    // Both ends included; `least` must not exceed `most`.
    std::uint64_t uniform(std::uint64_t least, std::uint64_t most);
    bool chance(double probability);
    // Both ends included.
    Duration duration(Duration least, Duration most);

  private:
    std::uint64_t state_;
};

}  // namespace vantrel::simulated
