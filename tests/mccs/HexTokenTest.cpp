#include <gtest/gtest.h>
#include <initializer_list>

#include "mccs/HexToken.h"

namespace vantrel::mccs {
namespace {

HexToken token(std::initializer_list<std::uint8_t> digits) {
    HexToken result;
    for (const std::uint8_t digit : digits) result.append(digit);
    return result;
}

TEST(HexToken, StartsEmpty) {
    EXPECT_TRUE(HexToken().isEmpty());
    EXPECT_FALSE(token({0}).isEmpty());
}

TEST(HexToken, CountsLeadingZerosAsDigits) { EXPECT_EQ(token({0, 0, 1}).length(), 3U); }

TEST(HexToken, ReadsTheFirstDigitAsTheMostSignificant) { EXPECT_EQ(token({0x1, 0xF}).value(), 0x1F); }

TEST(HexToken, HoldsTheLargestNumberOf16Bits) { EXPECT_EQ(token({0xF, 0xF, 0xF, 0xF}).value(), 0xFFFF); }

TEST(HexToken, HasNoValueAbove16Bits) { EXPECT_EQ(token({1, 0, 0, 0, 0}).value(), std::nullopt); }

TEST(HexToken, LeadingZerosAreNotSignificant) {
    EXPECT_EQ(token({0, 0, 0, 0, 0, 0, 0, 0xF, 0xF, 0xF, 0xF}).value(), 0xFFFF);
}

TEST(HexToken, StaysTooLargeHoweverManyDigitsFollow) {
    HexToken result;
    result.append(1);
    for (int count = 0; count < 1000; ++count) result.append(0);
    EXPECT_EQ(result.value(), std::nullopt);
    EXPECT_EQ(result.length(), 1001U);
}

}  // namespace
}  // namespace vantrel::mccs
