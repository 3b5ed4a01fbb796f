#include <QImage>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/qt/DrawingPicture.h"

namespace vantrel::qt {
namespace {

using namespace ui;

QImage picture(const Drawing& drawing, QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintDrawing(painter, image.rect(), drawing, Qt::red);
    return image;
}

Shape filled(RoundedRectangle rectangle) { return {.outline = rectangle, .stroke = {}}; }

TEST(DrawingPicture, ScalesToTheRectangleAndKeepsTheProportions) {
    const QImage image = picture({{20, 10}, {filled({{0, 0}, {20, 10}, 0})}}, {40, 40});
    EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(1, 11), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(20, 5).alpha(), 0);
    EXPECT_EQ(image.pixelColor(20, 35).alpha(), 0);
}

TEST(DrawingPicture, StrokesWithoutFilling) {
    const Shape outline{.outline = RoundedRectangle{{2, 2}, {16, 16}, 2}, .stroke = Stroke{.width = 2}};
    const QImage image = picture({{20, 20}, {outline}}, {20, 20});
    EXPECT_EQ(image.pixelColor(10, 10).alpha(), 0);
    EXPECT_GT(image.pixelColor(2, 10).alpha(), 200);
}

TEST(DrawingPicture, FollowsLinesAndCurves) {
    const std::vector<PathStep> steps{MoveTo{{0, 0}}, LineTo{{20, 0}}, CurveTo{{20, 12}, {12, 20}, {0, 20}},
                                      Close{}};
    const QImage image = picture({{20, 20}, {{.outline = steps, .stroke = {}}}}, {20, 20});
    EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(19, 19).alpha(), 0);
}

TEST(DrawingPicture, IsNothingWithoutASize) { EXPECT_EQ(picture({}, {8, 8}).pixelColor(4, 4).alpha(), 0); }

TEST(DrawingPicture, MakesAnIconForTraysOfManySizes) {
    const QIcon icon = drawingIcon({{20, 16}, {filled({{0, 0}, {20, 16}, 0})}}, Qt::white);
    for (const int side : {16, 22, 24, 48}) EXPECT_TRUE(icon.availableSizes().contains(QSize(side, side)));
}

}  // namespace
}  // namespace vantrel::qt
