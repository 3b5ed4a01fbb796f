// Children beside or below one another.
#pragma once

#include <vector>

#include "ui/layout/Box.h"

namespace vantrel::layout {

class StackBox : public Box {
  public:
    using Box::Box;

    bool expandsVertically() const override;
    bool canShrink() const override;

  protected:
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool contentExpands() const override;
    bool isPaddedInside() const override { return true; }
    void arrange(const Rect& inside) override;

  private:
    const ui::Stack& stack() const { return std::get<ui::Stack>(node().element); }
    bool isRow() const { return stack().axis == ui::Axis::horizontal; }
    bool isCentered() const { return stack().alignment == ui::Alignment::center; }
    int totalSpacing() const;
    std::vector<int> rowWidths(int width) const;
    void arrangeRow(const Rect& inside);
    void arrangeColumn(const Rect& inside);
};

}  // namespace vantrel::layout
