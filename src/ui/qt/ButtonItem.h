// A button with a title, a symbol or both.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class ButtonItem : public Item {
  public:
    ButtonItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    void arrange(const QRect& inside) override;
};

}  // namespace vantrel::qt
