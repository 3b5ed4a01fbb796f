#include <gtest/gtest.h>
#include <vector>

#include "text/Hex.h"

namespace vantrel::text {
namespace {

TEST(Hex, UpperHexPadsToTwoDigits) {
    EXPECT_EQ(upperHex(0), "00");
    EXPECT_EQ(upperHex(0x0B), "0B");
}

TEST(Hex, UpperHexWritesLettersInUppercase) { EXPECT_EQ(upperHex(0xE5), "E5"); }

TEST(Hex, UpperHexWritesAsManyDigitsAsANumberNeeds) {
    EXPECT_EQ(upperHex(0x100), "100");
    EXPECT_EQ(upperHex(0xFFFFFFFF), "FFFFFFFF");
}

TEST(Hex, LowerHexWritesNoLeadingZeros) {
    EXPECT_EQ(lowerHex(0), "0");
    EXPECT_EQ(lowerHex(0x0B), "b");
}

TEST(Hex, LowerHexWritesLettersInLowercase) { EXPECT_EQ(lowerHex(0xE00002ED), "e00002ed"); }

TEST(Hex, HexBytesOfNothingIsEmpty) { EXPECT_EQ(hexBytes({}), ""); }

TEST(Hex, HexBytesPutsSingleSpacesBetweenBytesOfTwoDigits) {
    const std::vector<std::uint8_t> bytes{0x6E, 0x88, 0x02, 0x00};
    EXPECT_EQ(hexBytes(bytes), "6E 88 02 00");
}

TEST(Hex, HexBytesOfOneByteHasNoSpace) {
    const std::vector<std::uint8_t> bytes{0xFF};
    EXPECT_EQ(hexBytes(bytes), "FF");
}

}  // namespace
}  // namespace vantrel::text
