#include "ui/qt/GridItem.h"

#include <algorithm>

#include "ui/qt/Look.h"
#include "ui/qt/Spoken.h"

namespace vantrel::qt {
namespace {

class Cells : public QWidget, public Spoken {
  public:
    explicit Cells(QWidget* parent) : QWidget(parent), Spoken(QAccessible::Grouping) {}
};

}  // namespace

GridItem::GridItem(Stage& stage, ui::ElementID element, QWidget* parent)
    : Item(stage, element, new Cells(parent)) {}

void GridItem::apply(const ui::Node& node) { grid_ = std::get<ui::Grid>(node.element); }

std::size_t GridItem::columns() const { return static_cast<std::size_t>(std::max(1, grid_.columns)); }

std::size_t GridItem::rows() const { return (children().size() + columns() - 1) / columns(); }

// Widths differ by a pixel where they can't be equal; the gaps never do.
std::pair<int, int> GridItem::column(std::size_t index, int width) const {
    const int gap = Look::current().pixels(grid_.columnSpacing);
    const auto count = static_cast<int>(columns());
    const int cells = std::max(0, width - (count - 1) * gap);
    const auto edge = [&](int column) { return cells * column / count; };
    const auto at = static_cast<int>(index);
    return {edge(at) + at * gap, edge(at + 1) - edge(at)};
}

int GridItem::rowHeight(std::size_t row, int width) const {
    int highest = 0;
    for (std::size_t i = row * columns(); i < std::min(children().size(), (row + 1) * columns()); ++i) {
        highest = std::max(highest, children()[i]->height(column(i % columns(), width).second));
    }
    return highest;
}

WidthRange GridItem::contentWidths() const {
    WidthRange cell;
    for (const auto& child : children()) {
        const WidthRange range = child->widths();
        cell = {std::max(cell.minimum, range.minimum), std::max(cell.natural, range.natural)};
    }
    const auto count = static_cast<int>(columns());
    const int gaps = (count - 1) * Look::current().pixels(grid_.columnSpacing);
    return {cell.minimum * count + gaps, cell.natural * count + gaps};
}

int GridItem::contentHeight(int width) const {
    int height = 0;
    for (std::size_t row = 0; row < rows(); ++row) {
        height += rowHeight(row, width) + (row > 0 ? Look::current().pixels(grid_.rowSpacing) : 0);
    }
    return height;
}

void GridItem::arrange(const QRect& inside) {
    int top = inside.top();
    for (std::size_t row = 0; row < rows(); ++row) {
        const int height = rowHeight(row, inside.width());
        for (std::size_t i = row * columns(); i < std::min(children().size(), (row + 1) * columns()); ++i) {
            const auto [left, width] = column(i % columns(), inside.width());
            children()[i]->place({inside.left() + left, top, width, height});
        }
        top += height + Look::current().pixels(grid_.rowSpacing);
    }
}

}  // namespace vantrel::qt
