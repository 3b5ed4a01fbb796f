// A titled panel of rows with lines between them.
#pragma once

#include "ui/layout/Box.h"

namespace vantrel::layout {

class SectionBox : public Box {
  public:
    using Box::Box;

  protected:
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool isPaddedInside() const override { return true; }
    void arrange(const Rect& inside) override;

  private:
    // Of the title and the gap below it.
    int panelTop(int width) const;
    int rowHeight(const Box& row, int width) const;
};

}  // namespace vantrel::layout
