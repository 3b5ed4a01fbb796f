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

// The part of `available` that is on the far side of the anchor, as long as that is
// most of it: the panel of a desktop need not say that it takes part of the screen.
QRect beyond(const QRect& anchor, Edge edge, const QRect& available, int gap) {
    QRect rest = available;
    switch (edge) {
        case Edge::top:
            rest.setTop(std::max(rest.top(), anchor.bottom() + 1) + gap);
            break;
        case Edge::bottom:
            rest.setBottom(std::min(rest.bottom(), anchor.top() - 1) - gap);
            break;
        case Edge::left:
            rest.setLeft(std::max(rest.left(), anchor.right() + 1) + gap);
            break;
        case Edge::right:
            rest.setRight(std::min(rest.right(), anchor.left() - 1) - gap);
            break;
    }
    const bool isMost =
        3 * rest.width() >= 2 * available.width() && 3 * rest.height() >= 2 * available.height();
    return isMost ? rest : available;
}

}  // namespace

QRect popoverPlace(const QRect& anchor, const QSize& size, const QRect& screen, const QRect& available,
                   int gap) {
    const Edge edge = edgeOf(anchor, screen, available);
    const QRect room = beyond(anchor, edge, available, gap);
    const QSize fitting = size.boundedTo(room.size());
    QRect place(QPoint(), fitting);
    place.moveCenter(anchor.center());
    switch (edge) {
        case Edge::top:
            place.moveTop(room.top());
            break;
        case Edge::bottom:
            place.moveBottom(room.bottom());
            break;
        case Edge::left:
            place.moveLeft(room.left());
            break;
        case Edge::right:
            place.moveRight(room.right());
            break;
    }
    place.moveLeft(within(place.left(), fitting.width(), room.left(), room.width()));
    place.moveTop(within(place.top(), fitting.height(), room.top(), room.height()));
    return place;
}

}  // namespace vantrel::qt
