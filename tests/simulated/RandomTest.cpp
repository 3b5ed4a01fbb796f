#include <gtest/gtest.h>
#include <limits>
#include <set>

#include "platform/simulated/Random.h"

namespace vantrel::simulated {
namespace {

TEST(Random, GivesTheNumbersOfThePublishedAlgorithm) {
    Random random(0);
    EXPECT_EQ(random.next(), 0xE220A8397B1DCDAFU);
    EXPECT_EQ(random.next(), 0x6E789E6AA1B965F4U);
    EXPECT_EQ(random.next(), 0x06C45D188009454FU);
}

TEST(Random, ReachesBothEndsOfARangeAndNothingElse) {
    Random random(7);
    std::set<std::uint64_t> seen;
    for (int draw = 0; draw < 200; ++draw) seen.insert(random.uniform(3, 6));
    EXPECT_EQ(seen, (std::set<std::uint64_t>{3, 4, 5, 6}));
}

TEST(Random, DrawsFromTheWholeRangeOfNumbers) {
    Random random(0);
    EXPECT_EQ(random.uniform(0, std::numeric_limits<std::uint64_t>::max()), 0xE220A8397B1DCDAFU);
}

TEST(Random, NeverHappensAtProbabilityZeroAndAlwaysAtOne) {
    Random random(7);
    for (int draw = 0; draw < 200; ++draw) {
        EXPECT_FALSE(random.chance(0));
        EXPECT_TRUE(random.chance(1));
    }
}

TEST(Random, HappensAboutAsOftenAsItsProbabilitySays) {
    Random random(7);
    int happened = 0;
    for (int draw = 0; draw < 10000; ++draw) happened += random.chance(0.25) ? 1 : 0;
    EXPECT_GT(happened, 2300);
    EXPECT_LT(happened, 2700);
}

TEST(Random, DrawsDurationsBetweenBothEnds) {
    Random random(7);
    std::set<Duration> seen;
    for (int draw = 0; draw < 100; ++draw) seen.insert(random.duration(Duration(5), Duration(6)));
    EXPECT_EQ(seen, (std::set<Duration>{Duration(5), Duration(6)}));
}

TEST(Random, ForksDifferentlyPerStreamAndUnmovedByDraws) {
    Random random(7);
    const std::uint64_t first = random.fork(1).next();
    EXPECT_NE(first, random.fork(2).next());
    EXPECT_EQ(first, random.fork(1).next());
}

}  // namespace
}  // namespace vantrel::simulated
