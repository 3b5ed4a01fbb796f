#include "ui/qt/Palettes.h"

namespace vantrel::qt {

QPalette lightPalette() {
    QPalette palette(QColor(0xf3, 0xf3, 0xf4));
    palette.setColor(QPalette::Window, QColor(0xee, 0xee, 0xef));
    palette.setColor(QPalette::WindowText, QColor(0x1d, 0x1d, 0x1f));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, QColor(0x1d, 0x1d, 0x1f));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x6f, 0xdb));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QPalette darkPalette() {
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
