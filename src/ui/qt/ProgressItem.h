// A small ring that turns while it can be seen.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class ProgressItem : public Item {
  public:
    ProgressItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node&) override {}
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
};

}  // namespace vantrel::qt
