// A slider. The keyboard and the wheel move it by the node's steps, a press or a
// drag takes the knob to the pointer.
//
// While it is held, and for a moment after a person has moved it, it shows what they
// did; then what the node says by that time.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class SliderItem : public Item {
  public:
    SliderItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool contentExpands() const override { return true; }
};

}  // namespace vantrel::qt
