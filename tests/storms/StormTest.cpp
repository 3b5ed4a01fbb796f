// A few storms with every run of the tests; the program `storm` runs thousands.
#include <algorithm>
#include <gtest/gtest.h>

#include "storms/Storm.h"

namespace vantrel::storms {
namespace {

constexpr std::uint64_t seeds = 32;

TEST(Storm, LeavesEverythingInOrder) {
    Counts counts;
    for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
        const auto broken = Storm::run(seed, Storm::Output::nothing, counts);
        ASSERT_EQ(broken, std::nullopt)
            << *broken << "\nreplay: build/dev/tests/storm --seed " << seed << " --log";
    }
    EXPECT_GT(counts.virtualHours, seeds);
}

TEST(Storm, IsTheSameEveryTime) {
    Counts first;
    Counts second;
    Storm::run(7, Storm::Output::nothing, first);
    Storm::run(7, Storm::Output::nothing, second);
    EXPECT_EQ(first.of, second.of);
    EXPECT_EQ(first.virtualHours, second.virtualHours);
}

}  // namespace
}  // namespace vantrel::storms
