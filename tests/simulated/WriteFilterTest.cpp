#include <gtest/gtest.h>

#include "platform/simulated/WriteFilter.h"

namespace vantrel::simulated {
namespace {

class WriteFilterTest : public testing::Test {
  protected:
    Personality personality;
    Random random{1};
};

TEST_F(WriteFilterTest, TakesEveryRequestByDefault) {
    WriteFilter filter(personality);
    EXPECT_TRUE(filter.takes(0x10, 1, random));
    EXPECT_TRUE(filter.takes(0x10, 1, random));
}

TEST_F(WriteFilterTest, TakesEveryThirdEqualRequestWhenItNeedsThree) {
    personality.writesNeeded = 3;
    WriteFilter filter(personality);
    EXPECT_FALSE(filter.takes(0x10, 1, random));
    EXPECT_FALSE(filter.takes(0x10, 1, random));
    EXPECT_TRUE(filter.takes(0x10, 1, random));
    EXPECT_FALSE(filter.takes(0x10, 1, random));
}

TEST_F(WriteFilterTest, CountsAgainAfterADifferentRequest) {
    personality.writesNeeded = 2;
    WriteFilter filter(personality);
    EXPECT_FALSE(filter.takes(0x10, 1, random));
    EXPECT_FALSE(filter.takes(0x10, 2, random));
    EXPECT_FALSE(filter.takes(0x12, 2, random));
    EXPECT_TRUE(filter.takes(0x12, 2, random));
}

TEST_F(WriteFilterTest, KeepsTheRowOverAGet) {
    personality.writesNeeded = 2;
    WriteFilter filter(personality);
    EXPECT_FALSE(filter.takes(0x10, 1, random));
    filter.sawGet();
    EXPECT_TRUE(filter.takes(0x10, 1, random));
}

TEST_F(WriteFilterTest, TakesOneRequestPerGetWhenWritesNeedARead) {
    personality.writesNeedARead = true;
    WriteFilter filter(personality);
    EXPECT_FALSE(filter.takes(0x10, 1, random));
    filter.sawGet();
    EXPECT_TRUE(filter.takes(0x10, 1, random));
    EXPECT_FALSE(filter.takes(0x10, 2, random));
}

TEST_F(WriteFilterTest, LosesTheRequestsOfItsRule) {
    personality.writesLost.first = 1;
    WriteFilter filter(personality);
    EXPECT_FALSE(filter.takes(0x10, 1, random));
    EXPECT_TRUE(filter.takes(0x10, 1, random));
}

}  // namespace
}  // namespace vantrel::simulated
