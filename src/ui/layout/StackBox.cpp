#include "ui/layout/StackBox.h"

#include <algorithm>

#include "ui/layout/HeightShares.h"

namespace vantrel::layout {

int StackBox::totalSpacing() const {
    const auto gaps = static_cast<int>(std::max<std::size_t>(children().size(), 1) - 1);
    return gaps * pixels(stack().spacing);
}

bool StackBox::expandsVertically() const {
    return !isRow() &&
           std::ranges::any_of(children(), [](const auto& child) { return child->expandsVertically(); });
}

bool StackBox::canShrink() const {
    return !isRow() && std::ranges::any_of(children(), [](const auto& child) { return child->canShrink(); });
}

bool StackBox::contentExpands() const {
    return std::ranges::any_of(children(), [](const auto& child) { return child->expands(); });
}

WidthRange StackBox::contentWidths() const {
    if (!isRow()) return childrensWidths();
    WidthRange all{totalSpacing(), totalSpacing()};
    for (const auto& child : children()) {
        const WidthRange range = child->widths();
        all = {all.minimum + range.minimum, all.natural + range.natural};
    }
    return all;
}

std::vector<int> StackBox::rowWidths(int width) const {
    std::vector<WidthWish> wishes;
    for (const auto& child : children()) wishes.push_back({child->widths(), child->expands()});
    return widthShares(wishes, width - totalSpacing());
}

int StackBox::contentHeight(int width) const {
    if (isRow()) {
        const std::vector<int> widths = rowWidths(width);
        int highest = 0;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            highest = std::max(highest, children()[i]->height(widths[i]));
        }
        return highest;
    }
    int height = totalSpacing();
    for (const auto& child : children()) height += child->height(child->widthIn(width));
    return height;
}

void StackBox::arrange(const Rect& inside) {
    if (isRow()) {
        arrangeRow(inside);
    } else {
        arrangeColumn(inside);
    }
}

void StackBox::arrangeRow(const Rect& inside) {
    const std::vector<int> widths = rowWidths(inside.width);
    int left = inside.x;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        Box& child = *children()[i];
        const int height = child.height(widths[i]);
        const int top = isCentered() ? (inside.height - height) / 2 : 0;
        child.control().setBehindExpanding(i > 0 && children()[i - 1]->expands());
        child.place({left, inside.y + top, widths[i], height});
        left += widths[i] + pixels(stack().spacing);
    }
}

void StackBox::arrangeColumn(const Rect& inside) {
    std::vector<HeightWish> wishes;
    for (const auto& child : children()) {
        wishes.push_back(
            {child->height(child->widthIn(inside.width)), child->expandsVertically(), child->canShrink()});
    }
    const std::vector<int> heights = heightShares(wishes, inside.height - totalSpacing());
    int top = inside.y;
    for (std::size_t i = 0; i < heights.size(); ++i) {
        const int width = children()[i]->widthIn(inside.width);
        const int left = isCentered() ? (inside.width - width) / 2 : 0;
        children()[i]->place({inside.x + left, top, width, heights[i]});
        top += heights[i] + pixels(stack().spacing);
    }
}

}  // namespace vantrel::layout
