#include <gtest/gtest.h>

#include "views/Format.h"

namespace vantrel::views {
namespace {

TEST(Format, ARawValueOfAHundredIsAPercentage) { EXPECT_EQ(Format::raw(100).label(42), "42%"); }

TEST(Format, ARawValueOfAnotherMaximumHasNoUnit) {
    EXPECT_EQ(Format::raw(255).label(42), "42");
    EXPECT_EQ(Format::raw(99).label(42), "42");
    EXPECT_EQ(Format::raw(101).label(42), "42");
}

TEST(Format, ARawValueIsCutToAWholeNumber) {
    EXPECT_EQ(Format::raw(100).label(42.9), "42%");
    EXPECT_EQ(Format::raw(255).label(42.9), "42");
}

TEST(Format, AFractionIsAPercentageToTheNearestWholeNumber) {
    EXPECT_EQ(Format::percent().label(0.426), "43%");
    EXPECT_EQ(Format::percent().label(0.424), "42%");
    EXPECT_EQ(Format::percent().label(0), "0%");
    EXPECT_EQ(Format::percent().label(1), "100%");
}

TEST(Format, AFractionMovesByHundredths) {
    EXPECT_EQ(Format::percent().step(), 0.01);
    EXPECT_EQ(Format::percent().wheelStep(), 0.05);
}

TEST(Format, ARawValueOfAFewHundredStepsMovesByOne) {
    EXPECT_EQ(Format::raw(10).step(), 1);
    EXPECT_EQ(Format::raw(255).step(), 1);
}

TEST(Format, ARawValueOfALargeRangeMovesByAHundredthOfIt) {
    EXPECT_EQ(Format::raw(256).step(), 3);
    EXPECT_EQ(Format::raw(1000).step(), 10);
    EXPECT_EQ(Format::raw(65535).step(), 656);
}

TEST(Format, ANotchOfTheWheelMovesARawValueByATwentiethOfItsRange) {
    EXPECT_EQ(Format::raw(100).wheelStep(), 5);
    EXPECT_EQ(Format::raw(255).wheelStep(), 13);
}

TEST(Format, ANotchOfTheWheelMovesARawValueByOneAtLeast) { EXPECT_EQ(Format::raw(4).wheelStep(), 1); }

}  // namespace
}  // namespace vantrel::views
