#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

#include "platform/linux/mutter/Islands.h"

namespace vantrel::mutter {
namespace {

LogicalMonitor part(int x, int y, int width = 100, int height = 100) {
    LogicalMonitor part;
    part.x = x;
    part.y = y;
    part.width = width;
    part.height = height;
    return part;
}

using Places = std::vector<std::pair<int, int>>;

Places places(const std::vector<LogicalMonitor>& parts) {
    Places places;
    for (const LogicalMonitor& part : parts) places.emplace_back(part.x, part.y);
    std::sort(places.begin(), places.end());
    return places;
}

TEST(Islands, AreWhatHangsTogetherOverOthers) {
    EXPECT_EQ(Islands::find({}).size(), 0U);
    EXPECT_EQ(Islands::find({part(0, 0)}).size(), 1U);
    EXPECT_EQ(Islands::find({part(0, 0), part(200, 0), part(100, 0)}).size(), 1U);
    EXPECT_EQ(Islands::find({part(0, 0), part(200, 0), part(300, 50)}).size(), 2U);
}

TEST(Islands, AreNotJoinedByACorner) {
    EXPECT_EQ(Islands::find({part(0, 0), part(100, 100)}).size(), 2U);
    EXPECT_EQ(Islands::find({part(0, 0), part(100, 99)}).size(), 1U);
}

TEST(Islands, StayWhereTheyAreWhenThereIsNoGap) {
    EXPECT_EQ(places(Islands::joined({part(0, 0), part(100, 30)})), (Places{{0, 0}, {100, 30}}));
}

TEST(Islands, CloseAGapByTheShortestWay) {
    EXPECT_EQ(places(Islands::joined({part(0, 0), part(200, 30)})), (Places{{0, 0}, {100, 30}}));
    EXPECT_EQ(places(Islands::joined({part(0, 0), part(30, 150)})), (Places{{0, 0}, {30, 100}}));
}

TEST(Islands, LetTheSmallerOneMove) {
    EXPECT_EQ(places(Islands::joined({part(0, 0), part(200, 0), part(300, 0)})),
              (Places{{100, 0}, {200, 0}, {300, 0}}));
}

TEST(Islands, SlideAlongWhenTheyHaveNoRowOrColumnInCommon) {
    EXPECT_EQ(Islands::find(Islands::joined({part(0, 0), part(150, 150)})).size(), 1U);
    EXPECT_EQ(Islands::find(Islands::joined({part(0, 0), part(100, 100)})).size(), 1U);
}

TEST(Islands, GoAroundWhatIsInTheWay) {
    // From the left, the part in between is in the way of the larger one.
    const auto joined =
        Islands::joined({part(0, 0), part(100, 0), part(250, -400, 100, 300), part(250, 120, 100, 300)});
    ASSERT_EQ(joined.size(), 4U);
    EXPECT_EQ(Islands::find(joined).size(), 1U);
    for (std::size_t index = 0; index < joined.size(); ++index) {
        for (std::size_t other = 0; other < index; ++other)
            EXPECT_FALSE(joined[index].overlaps(joined[other]));
    }
}

}  // namespace
}  // namespace vantrel::mutter
