// Sections below one another, scrolling when there are too many.
#pragma once

#include "ui/layout/Box.h"

namespace vantrel::layout {

class FormBox : public Box {
  public:
    using Box::Box;

    bool canShrink() const override { return true; }

  protected:
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    void arrange(const Rect& inside) override;
};

}  // namespace vantrel::layout
