// A button with a symbol and a title that may be the chosen one of several.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class TileItem : public Item {
  public:
    explicit TileItem(const Making& making);

    layout::WidthRange widths() const override;
    int height(int width) const override;
    bool expands() const override { return true; }

  protected:
    void show(const ui::Node& node) override;
    void arrange() override;
};

}  // namespace vantrel::qt
