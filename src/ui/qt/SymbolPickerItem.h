// One of several options, as a compact menu under a symbol.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class SymbolPickerItem : public Item {
  public:
    SymbolPickerItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
};

}  // namespace vantrel::qt
