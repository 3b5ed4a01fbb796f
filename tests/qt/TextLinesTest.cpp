#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/qt/Look.h"
#include "ui/qt/TextLines.h"

namespace vantrel::qt {
namespace {

using namespace ui;

TextLines line(const char* text) {
    return {text, Look::current().font(Font::body), TextLines::Wrapping::none};
}
TextLines block(const char* text) {
    return {text, Look::current().font(Font::body), TextLines::Wrapping::wraps};
}

TEST(TextLines, KeepsALineThatFits) {
    EXPECT_FALSE(line("Brightness").isCut(line("Brightness").naturalWidth()));
}

TEST(TextLines, NarrowsALineALittleBeforeItCutsIt) {
    const int natural = line("Brightness").naturalWidth();
    EXPECT_FALSE(line("Brightness").isCut(natural * 95 / 100));
    EXPECT_TRUE(line("Brightness").isCut(natural / 2));
}

TEST(TextLines, NeverCutsWhatWraps) { EXPECT_FALSE(block("Brightness and contrast").isCut(30)); }

TEST(TextLines, GrowsInHeightAsItGetsNarrower) {
    const TextLines text = block("Some monitors report the wrong inputs.");
    const int one = text.height(text.naturalWidth());
    EXPECT_GE(text.height(text.naturalWidth() / 3), 3 * one);
}

TEST(TextLines, BreaksAWordThatIsWiderThanTheLine) {
    const TextLines text = block("vcp(10,12,60,62,8D,AC,AE,B2,B6,C0,C6,C8,C9,D6,DF)");
    EXPECT_GE(text.height(text.naturalWidth() / 4), 3 * text.height(text.naturalWidth()));
}

TEST(TextLines, HasTheLinesThatTheTextHas) {
    EXPECT_EQ(block("one\ntwo").height(1000), 2 * block("one").height(1000));
    EXPECT_EQ(line("one\ntwo").height(1000), line("one").height(1000));
}

}  // namespace
}  // namespace vantrel::qt
