// A slider. The keyboard and assistive technology move it by the node's steps; the
// wheel scrolls what it lies on, as everywhere on this system.
//
// While it is held, and for a moment after a person has moved it, it shows what they
// did; then what the node says by that time.
#pragma once

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class SliderControl : public AppKitControl {
  public:
    SliderControl(layout::Stage& stage, ui::ElementID element);
    ~SliderControl() override;

    layout::WidthRange widths() const override;
    int height(int) const override { return naturalHeight(view()); }
    bool expands() const override { return true; }

  protected:
    void show(const ui::Node& node) override;

  private:
    Action* _Nonnull action_;
};

}  // namespace vantrel::appkit
