#include "ui/layout/SectionBox.h"

#include <algorithm>
#include <vector>

#include "ui/layout/Metrics.h"

namespace vantrel::layout {

int SectionBox::panelTop(int width) const {
    const int title = control().height(width);
    return title > 0 ? title + pixels(metrics::sectionTitleSpacing) : 0;
}

int SectionBox::rowHeight(const Box& row, int width) const {
    return std::max(pixels(metrics::rowMinimumHeight),
                    row.height(row.widthIn(width)) + 2 * pixels(metrics::rowVerticalPadding));
}

WidthRange SectionBox::contentWidths() const {
    const WidthRange widest = childrensWidths();
    const int padding = 2 * pixels(metrics::rowHorizontalPadding);
    return {widest.minimum + padding, widest.natural + padding};
}

int SectionBox::contentHeight(int width) const {
    const int inside = width - 2 * pixels(metrics::rowHorizontalPadding);
    int height = panelTop(width);
    for (const auto& child : children()) height += rowHeight(*child, inside);
    return height;
}

void SectionBox::arrange(const Rect& inside) {
    const int indent = pixels(metrics::rowHorizontalPadding);
    const int width = inside.width - 2 * indent;
    const int above = panelTop(inside.width);
    control().placeTitle({inside.x, inside.y, inside.width, control().height(inside.width)});
    std::vector<int> lines;
    int top = inside.y + above;
    for (const auto& child : children()) {
        if (child != children().front()) lines.push_back(top);
        const int used = child->widthIn(width);
        const int row = rowHeight(*child, width);
        const int height = child->height(used);
        child->place({inside.x + indent, top + (row - height) / 2, used, height});
        top += row;
    }
    control().showPanel({inside.x, inside.y + above, inside.width, inside.height - above}, lines);
}

}  // namespace vantrel::layout
