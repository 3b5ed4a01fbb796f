#include "ui/layout/DisclosureBox.h"

#include <algorithm>

#include "ui/layout/Metrics.h"

namespace vantrel::layout {

WidthRange DisclosureBox::contentWidths() const {
    const WidthRange title = control().widths();
    const WidthRange widest = childrensWidths();
    return {std::max(title.minimum, widest.minimum), std::max(title.natural, widest.natural)};
}

int DisclosureBox::contentHeight(int width) const {
    int height = control().height(width);
    for (const auto& child : children()) {
        height += pixels(metrics::disclosureSpacing) + child->height(child->widthIn(width));
    }
    return height;
}

void DisclosureBox::arrange(const Rect& inside) {
    const int title = control().height(inside.width);
    control().placeTitle({inside.x, inside.y, inside.width, title});
    int top = inside.y + title;
    for (const auto& child : children()) {
        top += pixels(metrics::disclosureSpacing);
        const int width = child->widthIn(inside.width);
        const int height = child->height(width);
        child->place({inside.x, top, width, height});
        top += height;
    }
}

}  // namespace vantrel::layout
