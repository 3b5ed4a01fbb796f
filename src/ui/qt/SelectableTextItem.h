// A text that can be selected and copied, over as many lines as it needs.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class SelectableTextItem : public Item {
  public:
    explicit SelectableTextItem(const Making& making);

    layout::WidthRange widths() const override;
    int height(int width) const override;

  protected:
    void show(const ui::Node& node) override;
};

}  // namespace vantrel::qt
