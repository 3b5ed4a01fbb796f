#include <gtest/gtest.h>

#include "text/UTF8.h"

namespace vantrel::text {
namespace {

using namespace std::string_literals;

constexpr char32_t lastCodePoint = 0x10FFFF;

bool isSurrogate(char32_t value) { return value >= 0xD800 && value <= 0xDFFF; }

std::string encoded(char32_t value) {
    const auto byte = [](char32_t bits) { return static_cast<char>(bits); };
    const auto trailing = [&](int shift) { return byte(0x80 | (value >> shift & 0x3F)); };
    if (value < 0x80) return {byte(value)};
    if (value < 0x800) return {byte(0xC0 | value >> 6), trailing(0)};
    if (value < 0x10000) return {byte(0xE0 | value >> 12), trailing(6), trailing(0)};
    return {byte(0xF0 | value >> 18), trailing(12), trailing(6), trailing(0)};
}

std::string replacements(int count) {
    std::string result;
    while (count-- > 0) result += "\uFFFD";
    return result;
}

TEST(UTF8, NothingStaysNothing) { EXPECT_EQ(repairedUTF8(""), ""); }

TEST(UTF8, EveryWellFormedCodePointComesBackUnchanged) {
    for (char32_t value = 0; value <= lastCodePoint; ++value) {
        if (isSurrogate(value)) continue;
        const std::string text = "a" + encoded(value) + "b";
        ASSERT_EQ(repairedUTF8(text), text) << "code point " << static_cast<std::uint32_t>(value);
    }
}

TEST(UTF8, ANULByteComesBackUnchanged) { EXPECT_EQ(repairedUTF8("a\0b\0"s), "a\0b\0"s); }

TEST(UTF8, EveryByteOfANonShortestFormIsReplaced) {
    EXPECT_EQ(repairedUTF8("\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41"), replacements(8) + "A");
}

TEST(UTF8, EveryByteOfASurrogateIsReplaced) {
    EXPECT_EQ(repairedUTF8("\xED\xA0\x80\xED\xBF\xBF\xED\xAF\x41"), replacements(8) + "A");
}

TEST(UTF8, BytesBeyondTheLastCodePointAreReplacedOneByOne) {
    EXPECT_EQ(repairedUTF8("\xF4\x91\x92\x93\xFF\x41\x80\xBF\x42"),
              replacements(5) + "A" + replacements(2) + "B");
}

TEST(UTF8, ATruncatedSequenceIsReplacedAsAWhole) {
    EXPECT_EQ(repairedUTF8("\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41"), replacements(4) + "A");
}

TEST(UTF8, ASequenceCutOffByTheEndIsReplacedAsAWhole) {
    EXPECT_EQ(repairedUTF8("a\xC3"), "a" + replacements(1));
    EXPECT_EQ(repairedUTF8("a\xE2\x82"), "a" + replacements(1));
    EXPECT_EQ(repairedUTF8("a\xF0\x9F\x96"), "a" + replacements(1));
}

TEST(UTF8, EveryByteThatIsNeverPartOfUTF8IsReplaced) {
    for (const int byte : {0xC0, 0xC1, 0xF5, 0xF8, 0xFC, 0xFE, 0xFF}) {
        EXPECT_EQ(repairedUTF8(std::string(1, static_cast<char>(byte)) + "\x80"), replacements(2)) << byte;
    }
}

TEST(UTF8, AStrayTrailingByteIsReplaced) { EXPECT_EQ(repairedUTF8("\x80"), replacements(1)); }

}  // namespace
}  // namespace vantrel::text
