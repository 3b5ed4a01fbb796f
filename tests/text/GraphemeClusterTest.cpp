#include <gtest/gtest.h>
#include <utf8proc.h>

#include "text/GraphemeCluster.h"

namespace vantrel::text {
namespace {

TEST(GraphemeCluster, IsAnASCIICharacterThatStandsAlone) {
    EXPECT_TRUE(GraphemeCluster("(").is('('));
    EXPECT_FALSE(GraphemeCluster(")").is('('));
}

TEST(GraphemeCluster, IsNotTheASCIICharacterThatAMarkCombinesWith) {
    EXPECT_FALSE(GraphemeCluster("(\u0308").is('('));
}

TEST(GraphemeCluster, IsNotTheASCIICharacterThatAPrefixCombinesWith) {
    constexpr std::string_view arabicNumberSignAndParenthesis = "\u0600(";
    EXPECT_FALSE(GraphemeCluster(arabicNumberSignAndParenthesis).is('('));
}

TEST(GraphemeCluster, LowersAnASCIILetter) {
    EXPECT_EQ(GraphemeCluster("A").asciiLowercase(), 'a');
    EXPECT_EQ(GraphemeCluster("Z").asciiLowercase(), 'z');
}

TEST(GraphemeCluster, LeavesEveryOtherASCIICharacterAsItIs) {
    for (const char character : {'a', 'z', '0', '@', '[', '_', '(', '\0', '\x7F'}) {
        EXPECT_EQ(GraphemeCluster(std::string_view(&character, 1)).asciiLowercase(), character);
    }
}

TEST(GraphemeCluster, TheLowerCaseOfTheKelvinSignIsAnASCIILetter) {
    EXPECT_EQ(GraphemeCluster("\u212A").asciiLowercase(), 'k');
}

TEST(GraphemeCluster, TheLowerCaseOfADottedCapitalIKeepsItsDot) {
    EXPECT_EQ(GraphemeCluster("\u0130").asciiLowercase(), std::nullopt);
}

TEST(GraphemeCluster, NoOtherCharacterHasALowerCaseInASCII) {
    constexpr utf8proc_int32_t kelvinSign = 0x212A;
    constexpr utf8proc_int32_t dottedCapitalI = 0x0130;
    for (utf8proc_int32_t value = 0x80; value <= 0x10FFFF; ++value) {
        if (value == kelvinSign || value == dottedCapitalI) continue;
        ASSERT_GE(utf8proc_tolower(value), 0x80) << value;
    }
}

TEST(GraphemeCluster, ACharacterOfSeveralCodePointsHasNoLowerCaseInASCII) {
    EXPECT_EQ(GraphemeCluster("V\u0308").asciiLowercase(), std::nullopt);
    EXPECT_EQ(GraphemeCluster("\r\n").asciiLowercase(), std::nullopt);
}

TEST(GraphemeCluster, LettersOfEveryScriptAreLetters) {
    for (const std::string_view letter :
         {"x", "X", "ß", "Ж", "λ", "ŉ", "Dž", "ʰ", "א", "ع", "क", "ก", "あ", "漢", "한"}) {
        EXPECT_TRUE(GraphemeCluster(letter).isLetter()) << letter;
    }
}

TEST(GraphemeCluster, ALetterUnderAMarkIsALetter) { EXPECT_TRUE(GraphemeCluster("e\u0301").isLetter()); }

TEST(GraphemeCluster, DigitsSignsAndMarksAreNoLetters) {
    for (const std::string_view other :
         {"0", "٣", "_", "(", " ", "\r\n", "²", "Ⓜ", "\u0308", "🖥", "\uFFFD"}) {
        EXPECT_FALSE(GraphemeCluster(other).isLetter()) << other;
    }
}

TEST(GraphemeCluster, ADigitUnderAMarkIsNoLetter) { EXPECT_FALSE(GraphemeCluster("2\u0308").isLetter()); }

}  // namespace
}  // namespace vantrel::text
