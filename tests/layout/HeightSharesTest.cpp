#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/layout/HeightShares.h"

namespace vantrel::layout {
namespace {

using testing::ElementsAre;

TEST(HeightShares, LeavesRoomBelowWhenNothingExpands) {
    EXPECT_THAT(heightShares({{20, false, false}, {30, false, false}}, 100), ElementsAre(20, 30));
}

TEST(HeightShares, GivesWhatIsLeftToThoseThatExpand) {
    EXPECT_THAT(heightShares({{20, false, false}, {0, true, false}, {0, true, false}}, 61),
                ElementsAre(20, 20, 21));
}

TEST(HeightShares, TakesWhatIsMissingFromThoseThatCanShrink) {
    EXPECT_THAT(heightShares({{20, false, false}, {300, false, true}, {30, false, false}}, 150),
                ElementsAre(20, 100, 30));
}

}  // namespace
}  // namespace vantrel::layout
