#include <gtest/gtest.h>
#include <string>

#include "platform/simulated/Occasions.h"

namespace vantrel::simulated {
namespace {

// One letter per occasion: X for the fault.
std::string pattern(const Occurrence& rule, int count) {
    Occasions occasions(rule);
    Random random(1);
    std::string letters;
    for (int occasion = 0; occasion < count; ++occasion) letters += occasions.next(random) ? '#' : '.';
    return letters;
}

TEST(Occasions, NeverHappenByDefault) { EXPECT_EQ(pattern({}, 4), "...."); }

TEST(Occasions, HappenAlwaysWithEveryOne) { EXPECT_EQ(pattern({0, 1, 0}, 4), "####"); }

TEST(Occasions, BeginWithTheFirstWhenTheyAlternate) { EXPECT_EQ(pattern({0, 2, 0}, 5), "#.#.#"); }

TEST(Occasions, HappenOnlyTheFirstTimesWithFirst) { EXPECT_EQ(pattern({0, 0, 2}, 5), "##..."); }

TEST(Occasions, HappenAlwaysWithProbabilityOne) { EXPECT_EQ(pattern({1, 0, 0}, 3), "###"); }

TEST(Occasions, HappenWhenAnyOfSeveralRulesSaysSo) { EXPECT_EQ(pattern({0, 3, 2}, 7), "##.#..#"); }

TEST(Occasions, DrawChanceOnEveryOccasionSoThatOtherRulesDoNotShiftIt) {
    const std::string chance = pattern({0.5, 0, 0}, 12);
    const std::string both = pattern({0.5, 0, 3}, 12);
    EXPECT_EQ(both.substr(3), chance.substr(3));
    EXPECT_EQ(both.substr(0, 3), "###");
}

}  // namespace
}  // namespace vantrel::simulated
