// A line between what is above and below it.
#pragma once

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class DividerControl : public AppKitControl {
  public:
    DividerControl(layout::Stage& stage, ui::ElementID element);

    int height(int) const override { return 1; }
    bool expands() const override { return true; }

  protected:
    void show(const ui::Node&) override {}
};

}  // namespace vantrel::appkit
