// A small ring that turns while it can be seen.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class ProgressItem : public Item {
  public:
    explicit ProgressItem(const Making& making);

    layout::WidthRange widths() const override;
    int height(int width) const override;
};

}  // namespace vantrel::qt
