// A titled button that offers things to do.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class MenuItem : public Item {
  public:
    MenuItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
};

}  // namespace vantrel::qt
