#include "ui/layout/FormBox.h"

#include "ui/layout/Metrics.h"

namespace vantrel::layout {

WidthRange FormBox::contentWidths() const {
    const WidthRange widest = childrensWidths();
    const int padding = 2 * pixels(metrics::formPadding);
    return {widest.minimum + padding, widest.natural + padding};
}

int FormBox::contentHeight(int width) const {
    const int padding = pixels(metrics::formPadding);
    int height = 2 * padding;
    for (const auto& child : children()) {
        if (child != children().front()) height += pixels(metrics::sectionSpacing);
        height += child->height(width - 2 * padding);
    }
    return height;
}

void FormBox::arrange(const Rect& inside) {
    const int padding = pixels(metrics::formPadding);
    control().setContentSize(inside.width, contentHeight(inside.width));
    const int width = inside.width - 2 * padding;
    int top = padding;
    for (const auto& child : children()) {
        const int height = child->height(width);
        child->place({padding, top, width, height});
        top += height + pixels(metrics::sectionSpacing);
    }
}

}  // namespace vantrel::layout
