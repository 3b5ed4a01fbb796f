// The strokes that more than one kind of control is drawn with.
#pragma once

#include <QPainter>
#include <QRectF>

namespace vantrel::qt {

void paintRounded(QPainter& painter, const QRectF& rectangle, double radius, const QColor& fill,
                  const QColor& border = Qt::transparent);
// Around what is inside `rectangle`, within the widget.
void paintFocusRing(QPainter& painter, const QRectF& rectangle, double radius);

enum class Chevron { down, right, upAndDown };
void paintChevron(QPainter& painter, const QRectF& square, Chevron chevron, const QColor& color);

// What is switched off is drawn as faintly.
inline constexpr double disabledOpacity = 0.45;

}  // namespace vantrel::qt
