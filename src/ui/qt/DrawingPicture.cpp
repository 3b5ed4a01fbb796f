#include "ui/qt/DrawingPicture.h"

#include <QPainterPath>
#include <QPixmap>
#include <algorithm>
#include <type_traits>

namespace vantrel::qt {
namespace {

QPointF pointOf(const ui::Point& point) { return {point.x, point.y}; }

QPainterPath pathOf(const ui::Shape& shape) {
    QPainterPath path;
    if (const auto* rectangle = std::get_if<ui::RoundedRectangle>(&shape.outline)) {
        path.addRoundedRect(
            QRectF(rectangle->origin.x, rectangle->origin.y, rectangle->size.width, rectangle->size.height),
            rectangle->cornerRadius, rectangle->cornerRadius);
        return path;
    }
    for (const ui::PathStep& step : std::get<std::vector<ui::PathStep>>(shape.outline)) {
        std::visit(
            [&path]<class Step>(const Step& taken) {
                if constexpr (std::is_same_v<Step, ui::MoveTo>) {
                    path.moveTo(pointOf(taken.to));
                } else if constexpr (std::is_same_v<Step, ui::LineTo>) {
                    path.lineTo(pointOf(taken.to));
                } else if constexpr (std::is_same_v<Step, ui::CurveTo>) {
                    path.cubicTo(pointOf(taken.control1), pointOf(taken.control2), pointOf(taken.to));
                } else {
                    path.closeSubpath();
                }
            },
            step);
    }
    return path;
}

}  // namespace

void paintDrawing(QPainter& painter, const QRectF& rectangle, const ui::Drawing& drawing,
                  const QColor& color) {
    if (drawing.size.width <= 0 || drawing.size.height <= 0) return;
    const double scale =
        std::min(rectangle.width() / drawing.size.width, rectangle.height() / drawing.size.height);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rectangle.center());
    painter.scale(scale, scale);
    painter.translate(-drawing.size.width / 2, -drawing.size.height / 2);
    for (const ui::Shape& shape : drawing.shapes) {
        const QPainterPath path = pathOf(shape);
        if (shape.stroke) {
            const auto cap = shape.stroke->hasRoundCaps ? Qt::RoundCap : Qt::FlatCap;
            painter.strokePath(path, QPen(color, shape.stroke->width, Qt::SolidLine, cap, Qt::MiterJoin));
        } else {
            painter.fillPath(path, color);
        }
    }
    painter.restore();
}

QIcon drawingIcon(const ui::Drawing& drawing, const QColor& color) {
    QIcon icon;
    for (const int side : {16, 18, 20, 22, 24, 32, 36, 40, 44, 48, 64, 96}) {
        QPixmap image(side, side);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paintDrawing(painter, QRectF(0, 0, side, side), drawing, color);
        painter.end();
        icon.addPixmap(image);
    }
    return icon;
}

}  // namespace vantrel::qt
