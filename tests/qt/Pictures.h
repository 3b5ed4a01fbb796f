// Pictures of what is shown, for people to look at.
#pragma once

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QWidget>
#include <string>

namespace vantrel::qt {

// What a widget shows, at `ratio` pixels for each of its own.
inline QImage pictureOf(QWidget& widget, double ratio = 1) {
    QImage image((QSizeF(widget.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

inline QPalette lightPalette() {
    QPalette palette(QColor(0xf3, 0xf3, 0xf4));
    palette.setColor(QPalette::Window, QColor(0xee, 0xee, 0xef));
    palette.setColor(QPalette::WindowText, QColor(0x1d, 0x1d, 0x1f));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, QColor(0x1d, 0x1d, 0x1f));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x6f, 0xdb));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

inline QPalette darkPalette() {
    QPalette palette(QColor(0x2b, 0x2b, 0x2e));
    palette.setColor(QPalette::Window, QColor(0x26, 0x27, 0x2a));
    palette.setColor(QPalette::WindowText, QColor(0xf0, 0xf0, 0xf2));
    palette.setColor(QPalette::Base, QColor(0x1c, 0x1d, 0x1f));
    palette.setColor(QPalette::Text, QColor(0xf0, 0xf0, 0xf2));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x8b, 0xff));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

}  // namespace vantrel::qt
