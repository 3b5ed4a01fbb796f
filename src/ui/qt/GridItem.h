// Cells of one width, filled row by row.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class GridItem : public Item {
  public:
    GridItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool contentExpands() const override { return true; }
    bool isContainer() const override { return true; }
    void arrange(const QRect& inside) override;

  private:
    std::size_t columns() const;
    // Left edge and width of a column.
    std::pair<int, int> column(std::size_t index, int width) const;
    int rowHeight(std::size_t row, int width) const;
    std::size_t rows() const;

    ui::Grid grid_;
};

}  // namespace vantrel::qt
