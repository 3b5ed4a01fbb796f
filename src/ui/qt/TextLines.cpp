#include "ui/qt/TextLines.h"

#include <QFontMetrics>
#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <vector>

namespace vantrel::qt {
namespace {

// Smaller letters are harder to read than a cut end is to guess.
constexpr double narrowest = 0.86;
constexpr int charactersAtLeast = 3;
constexpr int unlimited = 1 << 22;

// Calls `visit` with the top of each line and the line; returns the height.
template <class Visit>
double layOut(QTextLayout& layout, int width, Visit visit) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    double top = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(1, width));
        line.setPosition(QPointF(0, top));
        visit(line);
        top += std::ceil(line.height());
    }
    layout.endLayout();
    return top;
}

}  // namespace

TextLines::TextLines(QString text, const QFont& font, Wrapping wrapping)
    : text_(std::move(text)), font_(font), wrapping_(wrapping) {
    text_.replace('\n', wrapping == Wrapping::wraps ? QChar(QChar::LineSeparator) : QChar(' '));
}

int TextLines::naturalWidth() const {
    if (wrapping_ == Wrapping::none) {
        return static_cast<int>(std::ceil(QFontMetricsF(font_).horizontalAdvance(text_)));
    }
    QTextLayout layout(text_, font_);
    double widest = 0;
    layOut(layout, unlimited,
           [&](const QTextLine& line) { widest = std::max(widest, line.naturalTextWidth()); });
    return static_cast<int>(std::ceil(widest));
}

int TextLines::minimumWidth() const {
    const QFontMetrics metrics(font_);
    return std::min(naturalWidth(), charactersAtLeast * metrics.averageCharWidth() +
                                        metrics.horizontalAdvance(QChar(0x2026)));
}

int TextLines::height(int width) const {
    if (wrapping_ == Wrapping::none || text_.isEmpty()) return QFontMetrics(font_).height();
    QTextLayout layout(text_, font_);
    return static_cast<int>(std::ceil(layOut(layout, width, [](const QTextLine&) {})));
}

QFont TextLines::fitting(int width) const {
    QFont font = font_;
    const int smallest = static_cast<int>(std::ceil(font_.pixelSize() * narrowest));
    while (font.pixelSize() > smallest && QFontMetricsF(font).horizontalAdvance(text_) > width) {
        font.setPixelSize(font.pixelSize() - 1);
    }
    return QFontMetricsF(font).horizontalAdvance(text_) > width ? font_ : font;
}

bool TextLines::isCut(int width) const {
    if (wrapping_ == Wrapping::wraps) return false;
    return QFontMetricsF(fitting(width)).horizontalAdvance(text_) > width;
}

void TextLines::paint(QPainter& painter, const QRect& rectangle, Qt::Alignment alignment,
                      const QColor& color) const {
    painter.setPen(color);
    if (wrapping_ == Wrapping::wraps) {
        QTextLayout layout(text_, font_);
        layOut(layout, rectangle.width(), [](const QTextLine&) {});
        layout.draw(&painter, rectangle.topLeft());
        return;
    }
    const QFont font = fitting(rectangle.width());
    painter.setFont(font);
    const QString shown = isCut(rectangle.width())
                              ? QFontMetrics(font).elidedText(text_, Qt::ElideRight, rectangle.width())
                              : text_;
    painter.drawText(rectangle, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

}  // namespace vantrel::qt
