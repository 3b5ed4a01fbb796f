#include "ui/layout/ScrollBox.h"

#include <algorithm>

namespace vantrel::layout {

int ScrollBox::wholeHeight(int width) const {
    int height = 0;
    for (const auto& child : children()) height += child->height(width);
    return height;
}

int ScrollBox::contentHeight(int width) const {
    const int whole = wholeHeight(width);
    const int limit = std::get<ui::Scroll>(node().element).maximumHeight;
    return limit > 0 ? std::min(whole, pixels(limit)) : whole;
}

void ScrollBox::arrange(const Rect& inside) {
    control().setContentSize(inside.width, wholeHeight(inside.width));
    int top = 0;
    for (const auto& child : children()) {
        const int height = child->height(inside.width);
        child->place({0, top, inside.width, height});
        top += height;
    }
}

}  // namespace vantrel::layout
