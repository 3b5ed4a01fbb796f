#include <QImage>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/qt/Symbols.h"

namespace vantrel::qt {
namespace {

using namespace ui;

class SymbolsTest : public testing::TestWithParam<const char*> {};

QImage drawn(const ui::Symbol& symbol, int side, const QColor& color = Qt::red) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintSymbol(painter, image.rect(), symbol, color);
    return image;
}

int inked(const QImage& image) {
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) found += qAlpha(image.pixel(x, y)) > 64 ? 1 : 0;
    }
    return found;
}

TEST_P(SymbolsTest, AreDrawnInTheColorAtAnySize) {
    ASSERT_TRUE(hasSymbol(GetParam()));
    for (const int side : {13, 16, 32, 64}) {
        const QImage image = drawn(GetParam(), side);
        // Neither nothing nor a blot.
        EXPECT_GT(inked(image), side * side / 20);
        EXPECT_LT(inked(image), side * side * 7 / 10);
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                const QColor color = image.pixelColor(x, y);
                EXPECT_TRUE(color.alpha() < 8 || (color.red() > 230 && color.green() < 30));
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Names, SymbolsTest,
                         testing::Values("sun.max.fill", "circle.lefthalf.filled", "speaker.wave.2.fill",
                                         "speaker.fill", "speaker.slash.fill", "slider.horizontal.3",
                                         "rectangle.connected.to.line.below", "cable.connector.horizontal",
                                         "cable.connector", "arrow.right.circle", "laptopcomputer", "display",
                                         "display.trianglebadge.exclamationmark",
                                         "exclamationmark.triangle.fill", "dial.medium", "wand.and.rays",
                                         "minus.circle", "xmark"));

TEST(Symbols, ShowTheApplicationInItsOwnColors) {
    const QImage image = drawn(ui::applicationIcon, 64, Qt::black);
    EXPECT_GT(image.pixelColor(32, 20).blue(), 150);
}

TEST(Symbols, DrawSomethingNeutralForAnUnknownName) {
    EXPECT_FALSE(hasSymbol("no.such.symbol"));
    EXPECT_GT(inked(drawn("no.such.symbol", 24)), 20);
    EXPECT_GT(inked(drawn("../symbols", 24)), 20);
}

TEST(Symbols, DrawNothingWhereThereIsNoRoom) {
    QImage image(4, 4, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintSymbol(painter, QRectF(), "display", Qt::black);
    EXPECT_EQ(inked(image), 0);
}

TEST(Symbols, MakeTheIconOfWindows) { EXPECT_GE(applicationWindowIcon().availableSizes().size(), 6); }

}  // namespace
}  // namespace vantrel::qt
