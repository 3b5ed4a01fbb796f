// A titled panel of rows with lines between them.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class SectionItem : public Item {
  public:
    SectionItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool contentExpands() const override { return true; }
    bool isContainer() const override { return true; }
    void arrange(const QRect& inside) override;

  private:
    int titleHeight() const;
    int rowHeight(const Item& row, int width) const;
};

}  // namespace vantrel::qt
