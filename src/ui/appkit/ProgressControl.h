// Turns as long as something is under way.
#pragma once

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class ProgressControl : public AppKitControl {
  public:
    ProgressControl(layout::Stage& stage, ui::ElementID element);

    layout::WidthRange widths() const override { return naturalWidths(view()); }
    int height(int) const override { return naturalHeight(view()); }

  protected:
    void show(const ui::Node&) override {}
};

}  // namespace vantrel::appkit
