// A thin line across its container.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class DividerItem : public Item {
  public:
    explicit DividerItem(const Making& making);

    layout::WidthRange widths() const override { return {1, 1}; }
    int height(int) const override { return 1; }
    bool expands() const override { return true; }
};

}  // namespace vantrel::qt
