// A text that can be selected and copied, over as many lines as it needs.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class SelectableTextItem : public Item {
  public:
    SelectableTextItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
};

}  // namespace vantrel::qt
