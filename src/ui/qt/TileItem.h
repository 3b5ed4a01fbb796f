// A button with a symbol and a title that may be the chosen one of several.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class TileItem : public Item {
  public:
    TileItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool contentExpands() const override { return true; }
    void arrange(const QRect& inside) override;
};

}  // namespace vantrel::qt
