#include "ui/layout/GridBox.h"

#include <algorithm>

namespace vantrel::layout {

std::size_t GridBox::columns() const { return static_cast<std::size_t>(std::max(1, grid().columns)); }

std::size_t GridBox::rows() const { return (children().size() + columns() - 1) / columns(); }

// Widths differ by a pixel where they can't be equal; the gaps never do.
std::pair<int, int> GridBox::column(std::size_t index, int width) const {
    const int gap = pixels(grid().columnSpacing);
    const auto count = static_cast<int>(columns());
    const int cells = std::max(0, width - (count - 1) * gap);
    const auto edge = [&](int column) { return cells * column / count; };
    const auto at = static_cast<int>(index);
    return {edge(at) + at * gap, edge(at + 1) - edge(at)};
}

int GridBox::rowHeight(std::size_t row, int width) const {
    int highest = 0;
    for (std::size_t i = row * columns(); i < std::min(children().size(), (row + 1) * columns()); ++i) {
        highest = std::max(highest, children()[i]->height(column(i % columns(), width).second));
    }
    return highest;
}

WidthRange GridBox::contentWidths() const {
    const WidthRange cell = childrensWidths();
    const auto count = static_cast<int>(columns());
    const int gaps = (count - 1) * pixels(grid().columnSpacing);
    return {cell.minimum * count + gaps, cell.natural * count + gaps};
}

int GridBox::contentHeight(int width) const {
    int height = 0;
    for (std::size_t row = 0; row < rows(); ++row) {
        height += rowHeight(row, width) + (row > 0 ? pixels(grid().rowSpacing) : 0);
    }
    return height;
}

void GridBox::arrange(const Rect& inside) {
    int top = inside.y;
    for (std::size_t row = 0; row < rows(); ++row) {
        const int height = rowHeight(row, inside.width);
        for (std::size_t i = row * columns(); i < std::min(children().size(), (row + 1) * columns()); ++i) {
            const auto [left, width] = column(i % columns(), inside.width);
            children()[i]->place({inside.x + left, top, width, height});
        }
        top += height + pixels(grid().rowSpacing);
    }
}

}  // namespace vantrel::layout
