// What has nothing in it: as large as its control says. A spacer takes all the room
// that is left over.
#pragma once

#include "ui/layout/Box.h"

namespace vantrel::layout {

class LeafBox : public Box {
  public:
    using Box::Box;

    bool expandsVertically() const override;

  protected:
    WidthRange contentWidths() const override { return control().widths(); }
    int contentHeight(int width) const override { return control().height(width); }
    bool contentExpands() const override;
};

}  // namespace vantrel::layout
