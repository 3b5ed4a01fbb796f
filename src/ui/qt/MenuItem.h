// A titled button that offers things to do.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class MenuItem : public Item {
  public:
    explicit MenuItem(const Making& making);

    layout::WidthRange widths() const override;
    int height(int width) const override;

  protected:
    void show(const ui::Node& node) override;
};

}  // namespace vantrel::qt
