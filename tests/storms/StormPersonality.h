// How the monitors of storms misbehave.
#pragma once

#include <cstdint>
#include <span>

#include "platform/simulated/Personality.h"
#include "platform/simulated/Random.h"
#include "storms/Seen.h"

namespace vantrel::storms {

// A third of them well-behaved, the others with up to four faults at once.
// `inputs` are those that the monitor has.
simulated::Personality somePersonality(simulated::Random& random, std::span<const std::uint16_t> inputs,
                                       Counts& counts);

}  // namespace vantrel::storms
