#include "ui/qt/StackItem.h"

#include <algorithm>

#include "ui/qt/HeightShares.h"
#include "ui/qt/Look.h"
#include "ui/qt/Painting.h"
#include "ui/qt/Spoken.h"

namespace vantrel::qt {
namespace {

class Panel : public QWidget, public Spoken {
  public:
    explicit Panel(QWidget* parent) : QWidget(parent), Spoken(QAccessible::Grouping) {}

    void show(ui::Background background, int radius) {
        background_ = background;
        radius_ = radius;
        update();
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        if (background_ == ui::Background::none) return;
        const Look& look = Look::current();
        QPainter painter(this);
        if (background_ == ui::Background::card) {
            paintRounded(painter, rect(), look.pixels(radius_), look.card, look.cardBorder);
        } else {
            paintRounded(painter, rect(), look.pixels(radius_), look.warningBackground);
        }
    }

  private:
    ui::Background background_ = ui::Background::none;
    int radius_ = 0;
};

}  // namespace

StackItem::StackItem(Stage& stage, ui::ElementID element, QWidget* parent)
    : Item(stage, element, new Panel(parent)) {}

void StackItem::apply(const ui::Node& node) {
    stack_ = std::get<ui::Stack>(node.element);
    static_cast<Panel*>(widget())->show(stack_.background, stack_.cornerRadius);
}

int StackItem::totalSpacing() const {
    const auto gaps = static_cast<int>(std::max<std::size_t>(children().size(), 1) - 1);
    return gaps * Look::current().pixels(stack_.spacing);
}

bool StackItem::expandsVertically() const {
    return !isRow() &&
           std::ranges::any_of(children(), [](const auto& child) { return child->expandsVertically(); });
}

bool StackItem::canShrink() const {
    return !isRow() && std::ranges::any_of(children(), [](const auto& child) { return child->canShrink(); });
}

bool StackItem::contentExpands() const {
    return std::ranges::any_of(children(), [](const auto& child) { return child->expands(); });
}

WidthRange StackItem::contentWidths() const {
    WidthRange all;
    for (const auto& child : children()) {
        const WidthRange range = child->widths();
        all.minimum = isRow() ? all.minimum + range.minimum : std::max(all.minimum, range.minimum);
        all.natural = isRow() ? all.natural + range.natural : std::max(all.natural, range.natural);
    }
    const int spacing = isRow() ? totalSpacing() : 0;
    return {all.minimum + spacing, all.natural + spacing};
}

std::vector<int> StackItem::rowWidths(int width) const {
    std::vector<WidthWish> wishes;
    for (const auto& child : children()) wishes.push_back({child->widths(), child->expands()});
    return widthShares(wishes, width - totalSpacing());
}

int StackItem::columnWidth(const Item& child, int width) const {
    return child.expands() ? width : std::min(child.widths().natural, width);
}

int StackItem::contentHeight(int width) const {
    if (isRow()) {
        const std::vector<int> widths = rowWidths(width);
        int highest = 0;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            highest = std::max(highest, children()[i]->height(widths[i]));
        }
        return highest;
    }
    int height = totalSpacing();
    for (const auto& child : children()) height += child->height(columnWidth(*child, width));
    return height;
}

void StackItem::arrange(const QRect& inside) {
    if (isRow()) {
        arrangeRow(inside);
    } else {
        arrangeColumn(inside);
    }
}

void StackItem::arrangeRow(const QRect& inside) {
    const std::vector<int> widths = rowWidths(inside.width());
    int left = inside.left();
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const int height = children()[i]->height(widths[i]);
        const int top = stack_.alignment == ui::Alignment::center ? (inside.height() - height) / 2 : 0;
        children()[i]->setBehindExpanding(i > 0 && children()[i - 1]->expands());
        children()[i]->place({left, inside.top() + top, widths[i], height});
        left += widths[i] + Look::current().pixels(stack_.spacing);
    }
}

void StackItem::arrangeColumn(const QRect& inside) {
    std::vector<HeightWish> wishes;
    for (const auto& child : children()) {
        wishes.push_back({child->height(columnWidth(*child, inside.width())), child->expandsVertically(),
                          child->canShrink()});
    }
    const std::vector<int> heights = heightShares(wishes, inside.height() - totalSpacing());
    int top = inside.top();
    for (std::size_t i = 0; i < heights.size(); ++i) {
        const int width = columnWidth(*children()[i], inside.width());
        const int left = stack_.alignment == ui::Alignment::center ? (inside.width() - width) / 2 : 0;
        children()[i]->place({inside.left() + left, top, width, heights[i]});
        top += heights[i] + Look::current().pixels(stack_.spacing);
    }
}

}  // namespace vantrel::qt
