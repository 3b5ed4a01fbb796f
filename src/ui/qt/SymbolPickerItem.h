// One of several options, as a compact menu under a symbol.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class SymbolPickerItem : public Item {
  public:
    explicit SymbolPickerItem(const Making& making);

    layout::WidthRange widths() const override;
    int height(int width) const override;

  protected:
    void show(const ui::Node& node) override;
};

}  // namespace vantrel::qt
