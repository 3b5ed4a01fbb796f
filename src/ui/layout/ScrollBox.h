// As high as its contents, up to a limit; then it scrolls.
#pragma once

#include "ui/layout/Box.h"

namespace vantrel::layout {

class ScrollBox : public Box {
  public:
    using Box::Box;

    bool canShrink() const override { return true; }

  protected:
    WidthRange contentWidths() const override { return childrensWidths(); }
    int contentHeight(int width) const override;
    void arrange(const Rect& inside) override;

  private:
    int wholeHeight(int width) const;
};

}  // namespace vantrel::layout
