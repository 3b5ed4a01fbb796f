#include <gtest/gtest.h>

#include "text/Base64.h"

namespace vantrel::text {
namespace {

// RFC 4648, section 10.
TEST(Base64, EncodesTheExamplesOfItsStandard) {
    EXPECT_EQ(Base64::encode(""), "");
    EXPECT_EQ(Base64::encode("f"), "Zg==");
    EXPECT_EQ(Base64::encode("fo"), "Zm8=");
    EXPECT_EQ(Base64::encode("foo"), "Zm9v");
    EXPECT_EQ(Base64::encode("foob"), "Zm9vYg==");
    EXPECT_EQ(Base64::encode("fooba"), "Zm9vYmE=");
    EXPECT_EQ(Base64::encode("foobar"), "Zm9vYmFy");
}

TEST(Base64, DecodesEveryByteInEveryPosition) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes.append(4, static_cast<char>(byte));
    for (std::size_t length = 0; length <= bytes.size(); ++length) {
        const std::string some = bytes.substr(0, length);
        EXPECT_EQ(Base64::decode(Base64::encode(some)), some);
    }
}

TEST(Base64, RefusesACharacterOutsideItsAlphabet) {
    EXPECT_EQ(Base64::decode("Zm9-"), std::nullopt);
    EXPECT_EQ(Base64::decode("Zm9v\n"), std::nullopt);
    EXPECT_EQ(Base64::decode(std::string("Zm9\0", 4)), std::nullopt);
}

TEST(Base64, RefusesMissingPadding) { EXPECT_EQ(Base64::decode("Zg"), std::nullopt); }

TEST(Base64, RefusesPaddingInTheMiddle) { EXPECT_EQ(Base64::decode("Zg==Zg=="), std::nullopt); }

TEST(Base64, RefusesPaddingAlone) { EXPECT_EQ(Base64::decode("===="), std::nullopt); }

TEST(Base64, RefusesBitsThatNoByteHas) { EXPECT_EQ(Base64::decode("Zh=="), std::nullopt); }

}  // namespace
}  // namespace vantrel::text
