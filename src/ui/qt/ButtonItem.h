// A button with a title, a symbol or both.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class ButtonItem : public Item {
  public:
    explicit ButtonItem(const Making& making);

    layout::WidthRange widths() const override;
    int height(int width) const override;

  protected:
    void show(const ui::Node& node) override;
    void arrange() override;
};

}  // namespace vantrel::qt
