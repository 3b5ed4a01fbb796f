#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "support/Characters.h"
#include "support/RandomSeeds.h"
#include "text/GraphemeClusters.h"

namespace vantrel::text {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

static_assert(std::forward_iterator<GraphemeClusters::Iterator>);
static_assert(std::sentinel_for<std::default_sentinel_t, GraphemeClusters::Iterator>);

std::vector<std::string> split(std::string_view text) {
    std::vector<std::string> result;
    for (const GraphemeCluster character : GraphemeClusters(text)) result.emplace_back(character.bytes());
    return result;
}

TEST(GraphemeClusters, AnEmptyTextHasNone) { EXPECT_THAT(split(""), IsEmpty()); }

TEST(GraphemeClusters, EveryASCIICharacterIsOne) { EXPECT_THAT(split("v(1"), ElementsAre("v", "(", "1")); }

TEST(GraphemeClusters, ANULByteIsOne) { EXPECT_THAT(split("a\0b"s), ElementsAre("a", "\0"s, "b")); }

TEST(GraphemeClusters, CRLFIsOne) { EXPECT_THAT(split("a\r\nb"), ElementsAre("a", "\r\n", "b")); }

TEST(GraphemeClusters, LFCRAreTwo) { EXPECT_THAT(split("\n\r"), ElementsAre("\n", "\r")); }

TEST(GraphemeClusters, CRCRLFAreTwo) { EXPECT_THAT(split("\r\r\n"), ElementsAre("\r", "\r\n")); }

TEST(GraphemeClusters, NothingCombinesWithALineEnd) {
    EXPECT_THAT(split("\r\n\u0308\r\u0308"), ElementsAre("\r\n", "\u0308", "\r", "\u0308"));
}

TEST(GraphemeClusters, AMarkCombinesWithTheCharacterBeforeIt) {
    EXPECT_THAT(split("(\u0308\u0301)"), ElementsAre("(\u0308\u0301", ")"));
}

TEST(GraphemeClusters, AMarkAtTheStartStandsAlone) {
    EXPECT_THAT(split("\u0308("), ElementsAre("\u0308", "("));
}

TEST(GraphemeClusters, ASpacingMarkCombinesWithTheCharacterBeforeIt) {
    EXPECT_THAT(split("\u0915\u093F\u0915"), ElementsAre("\u0915\u093F", "\u0915"));
}

TEST(GraphemeClusters, APrefixCombinesWithTheCharacterAfterIt) {
    EXPECT_THAT(split("a\u0600(b"), ElementsAre("a", "\u0600(", "b"));
}

TEST(GraphemeClusters, AnASCIICharacterAfterAnotherScriptStandsAlone) {
    EXPECT_THAT(split("Ж(Ж)"), ElementsAre("Ж", "(", "Ж", ")"));
}

TEST(GraphemeClusters, AHangulSyllableOfThreeLettersIsOne) {
    EXPECT_THAT(split("\u1112\u1161\u11ab\u1112"), ElementsAre("\u1112\u1161\u11ab", "\u1112"));
}

TEST(GraphemeClusters, RegionalIndicatorsPairUpFromTheStart) {
    EXPECT_THAT(split("\U0001F1E6\U0001F1E7\U0001F1E8\U0001F1E9\U0001F1EA"),
                ElementsAre("\U0001F1E6\U0001F1E7", "\U0001F1E8\U0001F1E9", "\U0001F1EA"));
}

TEST(GraphemeClusters, EmojiJoinedByAZeroWidthJoinerAreOne) {
    EXPECT_THAT(split("\U0001F469\U0001F3FD\u200D\U0001F4BB!"),
                ElementsAre("\U0001F469\U0001F3FD\u200D\U0001F4BB", "!"));
}

TEST(GraphemeClusters, AZeroWidthJoinerDoesNotJoinLetters) {
    EXPECT_THAT(split("v\u200Dc"), ElementsAre("v\u200D", "c"));
}

TEST(GraphemeClusters, IllFormedBytesCountAsReplacementCharacters) {
    EXPECT_THAT(split("a\xE2\x82(\xFF\u0308"), ElementsAre("a", "\xE2\x82", "(", "\xFF\u0308"));
}

TEST(GraphemeClusters, RestIsTheTextFromACharacterOn) {
    auto position = GraphemeClusters("ab\u0308c").begin();
    EXPECT_EQ(position.rest(), "ab\u0308c");
    EXPECT_EQ((++position).rest(), "b\u0308c");
    EXPECT_EQ((++position).rest(), "c");
    EXPECT_EQ((++position).rest(), "");
    EXPECT_EQ(position, std::default_sentinel);
}

TEST(GraphemeClusters, ACopyOfAnIteratorKeepsItsPlace) {
    auto position = GraphemeClusters("ab").begin();
    const auto before = position++;
    EXPECT_EQ((*before).bytes(), "a");
    EXPECT_EQ((*position).bytes(), "b");
    EXPECT_NE(before, position);
}

TEST(GraphemeClusters, AgreeWithASecondOpinionOnRandomTexts) {
    constexpr std::array<std::string_view, 20> pieces{
        "v", "(",  "\r",     "\n",     " ",          "\t",         "\u0308",     "\u200D", "\u093F", "\u0600",
        "Ж", "한", "\u1112", "\u1161", "\U0001F1E6", "\U0001F469", "\U0001F3FD", "\u24C2", "\u0130", "\uFE0F",
    };
    test::forRandomSeeds(5000, [&](std::uint64_t seed) {
        std::mt19937_64 random(seed);
        std::string text;
        for (std::uint64_t count = random() % 30; count > 0; --count)
            text += pieces[random() % pieces.size()];
        EXPECT_EQ(split(text), test::characters(text)) << testing::PrintToString(text);
    });
}

}  // namespace
}  // namespace vantrel::text
