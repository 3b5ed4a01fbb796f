#include "platform/simulated/Random.h"

#include <limits>

#include "runtime/Fatal.h"

namespace vantrel::simulated {

Random Random::fork(std::uint64_t stream) const {
    constexpr std::uint64_t spread = 0xD1342543DE82EF95;
    Random forked(state_ ^ ((stream + 1) * spread));
    return Random(forked.next());
}

std::uint64_t Random::next() {
    // Steele, Lea, Flood: "Fast splittable pseudorandom number generators" (2014).
    state_ += 0x9E3779B97F4A7C15;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
    return mixed ^ (mixed >> 31);
}

std::uint64_t Random::uniform(std::uint64_t least, std::uint64_t most) {
    runtime::require(least <= most, "a random number from an empty range");
    constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max();
    const std::uint64_t width = most - least;
    if (width == largest) return next();
    // What is left over above the last whole range would favour its beginning.
    const std::uint64_t count = width + 1;
    const std::uint64_t unfair = (largest % count + 1) % count;
    std::uint64_t number = next();
    while (number > largest - unfair) number = next();
    return least + number % count;
}

bool Random::chance(double probability) {
    constexpr double step = 1.0 / static_cast<double>(1ULL << 53);
    return static_cast<double>(next() >> 11) * step < probability;
}

Duration Random::duration(Duration least, Duration most) {
    runtime::require(least <= most, "a random duration from an empty range");
    const auto width = static_cast<std::uint64_t>((most - least).count());
    return least + Duration(static_cast<Duration::rep>(uniform(0, width)));
}

}  // namespace vantrel::simulated
