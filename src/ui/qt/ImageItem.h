// A symbol of the size of the text beside it, or as large as the node says.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class ImageItem : public Item {
  public:
    ImageItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
};

}  // namespace vantrel::qt
