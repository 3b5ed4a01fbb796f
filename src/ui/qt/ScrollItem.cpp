#include "ui/qt/ScrollItem.h"

#include <algorithm>

#include "ui/qt/Look.h"
#include "ui/qt/ScrollView.h"

namespace vantrel::qt {

ScrollItem::ScrollItem(Stage& stage, ui::ElementID element, QWidget* parent)
    : Item(stage, element, new ScrollView(parent)) {}

QWidget* ScrollItem::childrenParent() const { return static_cast<ScrollView*>(widget())->widget(); }

void ScrollItem::apply(const ui::Node& node) { scroll_ = std::get<ui::Scroll>(node.element); }

WidthRange ScrollItem::contentWidths() const {
    WidthRange widest;
    for (const auto& child : children()) {
        const WidthRange range = child->widths();
        widest = {std::max(widest.minimum, range.minimum), std::max(widest.natural, range.natural)};
    }
    return widest;
}

int ScrollItem::wholeHeight(int width) const {
    int height = 0;
    for (const auto& child : children()) height += child->height(width);
    return height;
}

int ScrollItem::contentHeight(int width) const {
    const int whole = wholeHeight(width);
    return scroll_.maximumHeight > 0 ? std::min(whole, Look::current().pixels(scroll_.maximumHeight)) : whole;
}

void ScrollItem::arrange(const QRect& inside) {
    static_cast<ScrollView*>(widget())->setContentSize({inside.width(), wholeHeight(inside.width())});
    int top = 0;
    for (const auto& child : children()) {
        const int height = child->height(inside.width());
        child->place({0, top, inside.width(), height});
        top += height;
    }
}

}  // namespace vantrel::qt
