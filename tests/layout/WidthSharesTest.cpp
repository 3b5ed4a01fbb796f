#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/layout/WidthShares.h"

namespace vantrel::layout {
namespace {

using testing::ElementsAre;

TEST(WidthShares, GivesEachItsNaturalWidthWhileThereIsEnough) {
    EXPECT_THAT(widthShares({{{10, 40}}, {{10, 50}}}, 100), ElementsAre(40, 50));
}

TEST(WidthShares, SharesWhatIsLeftAmongThoseThatExpand) {
    EXPECT_THAT(widthShares({{{0, 10}, true}, {{0, 20}}, {{0, 0}, true}}, 101), ElementsAre(45, 20, 36));
}

TEST(WidthShares, LetsTheWidestGiveWayFirst) {
    EXPECT_THAT(widthShares({{{10, 200}}, {{10, 60}}}, 160), ElementsAre(100, 60));
}

TEST(WidthShares, MakesThemEquallyWideWhenTheWidestIsNotEnough) {
    EXPECT_THAT(widthShares({{{10, 200}}, {{10, 120}}}, 101), ElementsAre(51, 50));
}

TEST(WidthShares, GoesBelowNoMinimum) {
    EXPECT_THAT(widthShares({{{80, 200}}, {{70, 120}}}, 100), ElementsAre(80, 70));
}

TEST(WidthShares, HasNothingToShareAmongNone) { EXPECT_TRUE(widthShares({}, 100).empty()); }

}  // namespace
}  // namespace vantrel::layout
