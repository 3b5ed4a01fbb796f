// A title that opens and closes what is below it.
#pragma once

#include "ui/layout/Box.h"

namespace vantrel::layout {

class DisclosureBox : public Box {
  public:
    using Box::Box;

  protected:
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool isPaddedInside() const override { return true; }
    void arrange(const Rect& inside) override;
};

}  // namespace vantrel::layout
