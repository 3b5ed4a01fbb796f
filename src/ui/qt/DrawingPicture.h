// A ui::Drawing as pixels.
// Threads: main thread.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QRectF>

#include "ui/Drawing.h"

namespace vantrel::qt {

// As large as fits into the rectangle, in its middle.
void paintDrawing(QPainter& painter, const QRectF& rectangle, const ui::Drawing& drawing,
                  const QColor& color);
// In the sizes that trays of desktops ask for.
QIcon drawingIcon(const ui::Drawing& drawing, const QColor& color);

}  // namespace vantrel::qt
