#include "ui/qt/PopoverPlacement.h"

#include <algorithm>

namespace vantrel::qt {
namespace {

enum class Edge { top, bottom, left, right };

// The edge of the screen that the anchor belongs to: where a panel is that takes
// part of the screen, else the nearer one of top and bottom.
Edge edgeOf(const QRect& anchor, const QRect& screen, const QRect& available) {
    const QPoint at = anchor.center();
    if (at.y() < available.top()) return Edge::top;
    if (at.y() > available.bottom()) return Edge::bottom;
    if (at.x() < available.left()) return Edge::left;
    if (at.x() > available.right()) return Edge::right;
    return at.y() < screen.center().y() ? Edge::top : Edge::bottom;
}

int within(int start, int length, int low, int size) {
    return std::clamp(start, low, low + std::max(0, size - length));
}

}  // namespace

QRect popoverPlace(const QRect& anchor, const QSize& size, const QRect& screen, const QRect& available,
                   int gap) {
    const QSize fitting = size.boundedTo(available.size());
    QPoint corner(anchor.center().x() - fitting.width() / 2, anchor.center().y() - fitting.height() / 2);
    switch (edgeOf(anchor, screen, available)) {
        case Edge::top:
            corner.setY(std::max(anchor.bottom() + 1, available.top()) + gap);
            break;
        case Edge::bottom:
            corner.setY(std::min(anchor.top(), available.bottom() + 1) - gap - fitting.height());
            break;
        case Edge::left:
            corner.setX(std::max(anchor.right() + 1, available.left()) + gap);
            break;
        case Edge::right:
            corner.setX(std::min(anchor.left(), available.right() + 1) - gap - fitting.width());
            break;
    }
    return {QPoint(within(corner.x(), fitting.width(), available.left(), available.width()),
                   within(corner.y(), fitting.height(), available.top(), available.height())),
            fitting};
}

}  // namespace vantrel::qt
