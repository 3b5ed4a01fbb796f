#include <gtest/gtest.h>

#include "macos/CFBench.h"

namespace vantrel::macos {
namespace {

using namespace std::string_literals;

class CFTextTest : public CFBench {};

std::string through(const std::string& text) { return CFText::read(CFText::make(text).get()); }

TEST_F(CFTextTest, KeepsTextsOfAnyLength) {
    for (const std::size_t length : {0U, 1U, 127U, 128U, 1'000'000U}) {
        const std::string text(length, 'x');
        EXPECT_EQ(through(text), text);
    }
}

TEST_F(CFTextTest, KeepsCharactersOfEveryLengthAndTheNULAmongThem) {
    const std::string text = "\0 a\x7F é ߿ € \xEF\xBF\xBD \xF0\x9F\x96\xA5 \xF4\x8F\xBF\xBF"s;
    EXPECT_EQ(through(text), text);
    EXPECT_EQ(CFStringGetLength(CFText::make("a€\xF0\x9F\x96\xA5").get()), 4);
}

TEST_F(CFTextTest, KeepsTheFirstAndTheLastCharacterOfEveryLength) {
    for (const char* character : {"\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF",
                                  "\xEE\x80\x80", "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_EQ(through(character), character);
    }
}

TEST_F(CFTextTest, RepairsWhatIsNoUTF8) { EXPECT_EQ(through("a\xFF\xC3"), "a\xEF\xBF\xBD\xEF\xBF\xBD"); }

TEST_F(CFTextTest, ReplacesHalfASurrogatePair) {
    const std::string replaced = "\xEF\xBF\xBD";
    EXPECT_EQ(CFText::read(textOf(u"a\xD83D").get()), "a" + replaced);
    EXPECT_EQ(CFText::read(textOf(u"\xDDA5z").get()), replaced + "z");
    EXPECT_EQ(CFText::read(textOf(u"\xD83D\xD83D\xDDA5").get()), replaced + "\xF0\x9F\x96\xA5");
}

TEST_F(CFTextTest, ReplacesTheFirstAndTheLastOfTheHalves) {
    for (const char16_t half : {u'\xD800', u'\xDBFF', u'\xDC00', u'\xDFFF'}) {
        EXPECT_EQ(CFText::read(textOf(std::u16string(1, half)).get()), "\xEF\xBF\xBD");
    }
}

TEST_F(CFTextTest, IsNullWhenTheSystemMakesNone) {
    failNext("CFStringCreateWithBytes");
    EXPECT_FALSE(CFText::make("text"));
}

}  // namespace
}  // namespace vantrel::macos
