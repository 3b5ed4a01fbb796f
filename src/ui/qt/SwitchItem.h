// A switch that is on or off, behind its label if it has one. A press asks for the
// other state; the node says whether it comes.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class SwitchItem : public Item {
  public:
    SwitchItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool contentExpands() const override;
};

}  // namespace vantrel::qt
