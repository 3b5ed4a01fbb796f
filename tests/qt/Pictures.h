// Pictures of what is shown, for people to look at.
#pragma once

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QWidget>
#include <string>

#include "ui/qt/Palettes.h"

namespace vantrel::qt {

// What a widget shows, at `ratio` pixels for each of its own.
inline QImage pictureOf(QWidget& widget, double ratio = 1) {
    QImage image((QSizeF(widget.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

}  // namespace vantrel::qt
