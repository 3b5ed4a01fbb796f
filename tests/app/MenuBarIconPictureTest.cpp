#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include "app/MenuBarIcon.h"
#include "ui/qt/DrawingPicture.h"

namespace vantrel::app {
namespace {

// Where a picture of it has anything, in points.
QRectF inkOf(const QImage& picture, double scale) {
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) > 0) ink |= QRect(x, y, 1, 1);
        }
    }
    return {ink.x() / scale, ink.y() / scale, ink.width() / scale, ink.height() / scale};
}

TEST(MenuBarIconPicture, IsDrawnWhereItsNumbersSay) {
    constexpr int scale = 40;
    QImage picture(20 * scale, 16 * scale, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    qt::paintDrawing(painter, QRectF(picture.rect()), MenuBarIcon::image(), Qt::black);
    painter.end();
    const QRectF ink = inkOf(picture, scale);
    // The tips of the large sparkle, and the ends of the outline and the foot.
    EXPECT_NEAR(ink.right(), 20.0, 0.1);
    EXPECT_NEAR(ink.top(), 0.0, 0.1);
    EXPECT_NEAR(ink.left(), 0.75, 0.1);
    EXPECT_NEAR(ink.bottom(), 15.25, 0.1);
    const auto alphaAt = [&](double x, double y) {
        return qAlpha(picture.pixel(static_cast<int>(x * scale), static_cast<int>(y * scale)));
    };
    EXPECT_EQ(alphaAt(16.5, 3.5), 255);
    EXPECT_EQ(alphaAt(6.0, 7.25), 255);
    EXPECT_EQ(alphaAt(8.5, 13.0), 255);
    EXPECT_EQ(alphaAt(18.5, 5.5), 0);
    EXPECT_EQ(alphaAt(11.0, 9.0), 0);
}

}  // namespace
}  // namespace vantrel::app
