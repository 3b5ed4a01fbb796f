// A symbol of the size of the text beside it, or as large as the node says.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class ImageItem : public Item {
  public:
    explicit ImageItem(const Making& making);

    layout::WidthRange widths() const override;
    int height(int width) const override;

  protected:
    void show(const ui::Node& node) override;
};

}  // namespace vantrel::qt
