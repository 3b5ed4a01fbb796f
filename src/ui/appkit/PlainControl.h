// A node that shows nothing of itself: a grid, or the space between others.
#pragma once

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class PlainControl : public AppKitControl {
  public:
    PlainControl(layout::Stage& stage, ui::ElementID element);

  protected:
    void show(const ui::Node&) override {}
};

}  // namespace vantrel::appkit
