// What a stack lies on: nothing, or a panel with round corners.
#pragma once

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class StackControl : public AppKitControl {
  public:
    StackControl(layout::Stage& stage, ui::ElementID element);

  protected:
    void show(const ui::Node& node) override;
};

}  // namespace vantrel::appkit
