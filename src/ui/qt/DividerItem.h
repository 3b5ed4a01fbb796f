// A thin line across its container.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class DividerItem : public Item {
  public:
    DividerItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node&) override {}
    WidthRange contentWidths() const override { return {1, 1}; }
    int contentHeight(int) const override { return 1; }
    bool contentExpands() const override { return true; }
};

}  // namespace vantrel::qt
