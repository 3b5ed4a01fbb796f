// Cells of one width, filled row by row.
#pragma once

#include <utility>

#include "ui/layout/Box.h"

namespace vantrel::layout {

class GridBox : public Box {
  public:
    using Box::Box;

  protected:
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool isPaddedInside() const override { return true; }
    void arrange(const Rect& inside) override;

  private:
    const ui::Grid& grid() const { return std::get<ui::Grid>(node().element); }
    std::size_t columns() const;
    std::size_t rows() const;
    // Left edge and width of a column.
    std::pair<int, int> column(std::size_t index, int width) const;
    int rowHeight(std::size_t row, int width) const;
};

}  // namespace vantrel::layout
