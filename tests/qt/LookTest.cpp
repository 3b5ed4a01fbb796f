#include <QApplication>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "qt/Pictures.h"
#include "ui/qt/Look.h"

namespace vantrel::qt {
namespace {

using namespace ui;

class LookTest : public testing::TestWithParam<QPalette (*)()> {
  protected:
    Look look{GetParam()(), QApplication::font()};
};

TEST_P(LookTest, WritesWhatExplainsReadablyOnEveryBackground) {
    for (const QColor& ink : {look.text, look.secondaryText, look.warningText}) {
        EXPECT_GE(contrast(ink, look.window), 4.5);
        EXPECT_GE(contrast(ink, look.card), 4.5);
        EXPECT_GE(contrast(ink, blend(look.warningBackground, look.card)), 4.5);
    }
}

TEST_P(LookTest, WritesReadablyOnWhatIsChosen) { EXPECT_GE(contrast(look.onPlate, look.plate), 4.5); }

INSTANTIATE_TEST_SUITE_P(Palettes, LookTest, testing::Values(lightPalette, darkPalette));

TEST(Look, TellsADarkPaletteByItsText) {
    EXPECT_FALSE(Look(lightPalette(), QApplication::font()).isDark);
    EXPECT_TRUE(Look(darkPalette(), QApplication::font()).isDark);
}

TEST(Look, WritesReadablyOnAnAccentThatIsNeitherDarkNorLight) {
    QPalette palette = lightPalette();
    for (const QColor accent :
         {QColor(0x3d, 0xae, 0xe9), QColor(0xf5, 0x7c, 0x00), QColor(0x80, 0x80, 0x80)}) {
        palette.setColor(QPalette::Highlight, accent);
        const Look look(palette, QApplication::font());
        EXPECT_GE(contrast(look.onPlate, look.plate), 4.5);
    }
}

TEST(Look, HasAPixelForAPointWithAnOrdinaryFont) {
    QFont font = QApplication::font();
    font.setPixelSize(13);
    EXPECT_EQ(Look(lightPalette(), font).pixels(24), 24);
    font.setPixelSize(9);
    EXPECT_EQ(Look(lightPalette(), font).pixels(24), 24);
}

TEST(Look, GrowsWithALargeFont) {
    QFont font = QApplication::font();
    font.setPixelSize(27);
    const Look look(lightPalette(), font);
    EXPECT_NEAR(look.pixels(100), 201, 2);
    EXPECT_NEAR(look.points(look.pixels(340), 0).width, 340, 1);
}

TEST(Look, CallsTheContrastOfBlackAndWhiteTwentyOne) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21, 0.01);
}

}  // namespace
}  // namespace vantrel::qt
