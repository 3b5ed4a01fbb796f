// Counts the occasions for one fault and tells which of them have it.
#pragma once

#include <cstdint>

#include "platform/simulated/Personality.h"
#include "platform/simulated/Random.h"

namespace vantrel::simulated {

class Occasions {
  public:
    explicit Occasions(const Occurrence& rule = {}) : rule_(rule) {}

    // Whether the fault happens on the next occasion.
    bool next(Random& random) {
        const std::uint64_t index = count_++;
        const bool byChance = rule_.probability > 0 && random.chance(rule_.probability);
        const bool byTurn = rule_.every > 0 && index % rule_.every == 0;
        return byChance || byTurn || index < rule_.first;
    }

  private:
    Occurrence rule_;
    std::uint64_t count_ = 0;
};

}  // namespace vantrel::simulated
