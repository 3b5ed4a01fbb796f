// Children beside or below one another, on a panel if the node says so.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class StackItem : public Item {
  public:
    StackItem(Stage& stage, ui::ElementID element, QWidget* parent);

    bool expandsVertically() const override;
    bool canShrink() const override;

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool contentExpands() const override;
    bool isContainer() const override { return true; }
    void arrange(const QRect& inside) override;

  private:
    bool isRow() const { return stack_.axis == ui::Axis::horizontal; }
    int totalSpacing() const;
    std::vector<int> rowWidths(int width) const;
    int columnWidth(const Item& child, int width) const;
    void arrangeRow(const QRect& inside);
    void arrangeColumn(const QRect& inside);

    ui::Stack stack_;
};

}  // namespace vantrel::qt
