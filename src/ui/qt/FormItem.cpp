#include "ui/qt/FormItem.h"

#include <algorithm>

#include "ui/qt/Look.h"
#include "ui/qt/ScrollView.h"

namespace vantrel::qt {

FormItem::FormItem(Stage& stage, ui::ElementID element, QWidget* parent)
    : Item(stage, element, new ScrollView(parent)) {}

QWidget* FormItem::childrenParent() const { return static_cast<ScrollView*>(widget())->widget(); }

WidthRange FormItem::contentWidths() const {
    const int padding = Look::current().pixels(metrics::formPadding);
    WidthRange widest;
    for (const auto& child : children()) {
        const WidthRange range = child->widths();
        widest = {std::max(widest.minimum, range.minimum), std::max(widest.natural, range.natural)};
    }
    return {widest.minimum + 2 * padding, widest.natural + 2 * padding};
}

int FormItem::contentHeight(int width) const {
    const Look& look = Look::current();
    const int padding = look.pixels(metrics::formPadding);
    int height = 2 * padding;
    for (const auto& child : children()) {
        if (child != children().front()) height += look.pixels(metrics::sectionSpacing);
        height += child->height(width - 2 * padding);
    }
    return height;
}

void FormItem::arrange(const QRect& inside) {
    const Look& look = Look::current();
    const int padding = look.pixels(metrics::formPadding);
    static_cast<ScrollView*>(widget())->setContentSize({inside.width(), contentHeight(inside.width())});
    const int width = inside.width() - 2 * padding;
    int top = padding;
    for (const auto& child : children()) {
        const int height = child->height(width);
        child->place({padding, top, width, height});
        top += height + look.pixels(metrics::sectionSpacing);
    }
}

}  // namespace vantrel::qt
