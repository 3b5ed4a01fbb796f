#include "ui/qt/Painting.h"

#include <QPainterPath>
#include <algorithm>

#include "ui/qt/Look.h"

namespace vantrel::qt {

void paintRounded(QPainter& painter, const QRectF& rectangle, double radius, const QColor& fill,
                  const QColor& border) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(rectangle, radius, radius);
    if (border.alpha() > 0) {
        painter.setPen(QPen(border, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(rectangle.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
    }
    painter.restore();
}

void paintFocusRing(QPainter& painter, const QRectF& rectangle, double radius) {
    const Look& look = Look::current();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    // A gap, so that it also shows on what has the accent's colour itself.
    painter.setPen(QPen(look.card, 1));
    painter.drawRoundedRect(rectangle.adjusted(2.5, 2.5, -2.5, -2.5), std::max(0.0, radius - 2.5),
                            std::max(0.0, radius - 2.5));
    painter.setPen(QPen(look.accent, 2));
    painter.drawRoundedRect(rectangle.adjusted(1, 1, -1, -1), std::max(0.0, radius - 1),
                            std::max(0.0, radius - 1));
    painter.restore();
}

void paintChevron(QPainter& painter, const QRectF& square, Chevron chevron, const QColor& color) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.center());
    painter.scale(square.width() / 12, square.height() / 12);
    painter.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const auto line = [&painter](std::initializer_list<QPointF> points) {
        painter.drawPolyline(points.begin(), static_cast<int>(points.size()));
    };
    switch (chevron) {
        case Chevron::down:
            line({{-3.5, -1.75}, {0, 1.75}, {3.5, -1.75}});
            break;
        case Chevron::right:
            line({{-1.75, -3.5}, {1.75, 0}, {-1.75, 3.5}});
            break;
        case Chevron::upAndDown:
            line({{-2.75, -1.75}, {0, -4.5}, {2.75, -1.75}});
            line({{-2.75, 1.75}, {0, 4.5}, {2.75, 1.75}});
            break;
    }
    painter.restore();
}

}  // namespace vantrel::qt
