// The pictures that come with the program, by the names that ui::Symbol has for
// them. A name without a picture draws a neutral shape.
// Threads: main thread.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QRectF>

#include "ui/Symbol.h"

namespace vantrel::qt {

bool hasSymbol(const ui::Symbol& symbol);
// As large as fits into the square, all of it in `color`; the application's icon in
// its own colours.
void paintSymbol(QPainter& painter, const QRectF& square, const ui::Symbol& symbol, const QColor& color);
// Of the program's windows.
QIcon applicationWindowIcon();

}  // namespace vantrel::qt
