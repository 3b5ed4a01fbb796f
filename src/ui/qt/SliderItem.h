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
    explicit SliderItem(const Making& making);

    layout::WidthRange widths() const override;
    int height(int width) const override;
    bool expands() const override { return true; }

  protected:
    void show(const ui::Node& node) override;
};

}  // namespace vantrel::qt
