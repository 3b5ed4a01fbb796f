#include <gtest/gtest.h>

#include "text/CodePoint.h"

namespace vantrel::text {
namespace {

void expectFirst(std::string_view bytes, char32_t value, std::size_t length) {
    const CodePoint first = CodePoint::first(bytes);
    EXPECT_EQ(first.value, value);
    EXPECT_EQ(first.length, length);
    EXPECT_TRUE(first.isWellFormed);
}

void expectIllFormed(std::string_view bytes, std::size_t length) {
    const CodePoint first = CodePoint::first(bytes);
    EXPECT_EQ(first.value, CodePoint::replacementCharacter);
    EXPECT_EQ(first.length, length);
    EXPECT_FALSE(first.isWellFormed);
}

TEST(CodePoint, ReadsOneByte) { expectFirst("a\u0308", U'a', 1); }
TEST(CodePoint, ReadsANULByte) { expectFirst(std::string_view("\0a", 2), 0, 1); }
TEST(CodePoint, ReadsTwoBytes) { expectFirst("\u0308a", 0x0308, 2); }
TEST(CodePoint, ReadsThreeBytes) { expectFirst("\u212Aa", 0x212A, 3); }
TEST(CodePoint, ReadsFourBytes) { expectFirst("\U0001F5A5a", 0x1F5A5, 4); }
TEST(CodePoint, ReadsTheLastCodePoint) { expectFirst("\U0010FFFF", 0x10FFFF, 4); }
TEST(CodePoint, AWellFormedReplacementCharacterIsNoMistake) { expectFirst("\uFFFD", 0xFFFD, 3); }
TEST(CodePoint, TakesAStrayByteAlone) { expectIllFormed("\xBF\xBF", 1); }
TEST(CodePoint, TakesTheMaximalSubpartOfACutOffSequence) { expectIllFormed("\xF0\x9F\x96(", 3); }
TEST(CodePoint, TakesNoByteThatCouldNotFollow) { expectIllFormed("\xE0\x80\x80", 1); }

}  // namespace
}  // namespace vantrel::text
