#include <gtest/gtest.h>

#include "text/Text.h"

namespace vantrel::text {
namespace {

TEST(Text, AVerbatimTextShowsAsItStands) {
    const Text text = Text::verbatim("HDMI 1");
    EXPECT_TRUE(text.isVerbatim());
    EXPECT_EQ(text.key(), "HDMI 1");
    EXPECT_EQ(text.english(), "HDMI 1");
}

TEST(Text, ATranslatedTextHasItsEnglishAsKey) {
    const Text text = Text::translated("Brightness");
    EXPECT_FALSE(text.isVerbatim());
    EXPECT_EQ(text.key(), "Brightness");
    EXPECT_EQ(text.english(), "Brightness");
}

TEST(Text, EnglishTakesTheArgumentsInOrder) {
    EXPECT_EQ(Text::translated("%@ of %@", {"2", "3"}).english(), "2 of 3");
}

TEST(Text, ATranslationTakesTheArgumentsInOrder) {
    EXPECT_EQ(Text::translated("%@ of %@", {"2", "3"}).filled("%@ von %@!"), "2 von 3!");
}

TEST(Text, AnArgumentIsNotSearchedForPlaceholders) {
    EXPECT_EQ(Text::translated("%@ and %@", {"%@", "b"}).english(), "%@ and b");
}

TEST(Text, APlaceholderWithoutAnArgumentStays) {
    EXPECT_EQ(Text::translated("%@ of %@", {"2"}).english(), "2 of %@");
}

TEST(Text, AnArgumentWithoutAPlaceholderIsLeftOut) {
    EXPECT_EQ(Text::translated("All", {"2"}).english(), "All");
}

TEST(Text, APlaceholderInAVerbatimTextIsNone) { EXPECT_EQ(Text::verbatim("100 %@").english(), "100 %@"); }

TEST(Text, AVerbatimTextIgnoresATranslation) {
    EXPECT_EQ(Text::verbatim("Demo").filled("Vorführung"), "Demo");
}

TEST(Text, AVerbatimTextDiffersFromATranslatedOneOfTheSameWords) {
    EXPECT_NE(Text::verbatim("Volume"), Text::translated("Volume"));
}

TEST(Text, TextsWithOtherArgumentsDiffer) {
    EXPECT_NE(Text::translated("Vendor 0x%@", {"E5"}), Text::translated("Vendor 0x%@", {"E6"}));
    EXPECT_EQ(Text::translated("Vendor 0x%@", {"E5"}), Text::translated("Vendor 0x%@", {"E5"}));
}

}  // namespace
}  // namespace vantrel::text
