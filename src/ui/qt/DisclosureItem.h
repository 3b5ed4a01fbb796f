// A title that opens and closes what is below it.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class DisclosureItem : public Item {
  public:
    explicit DisclosureItem(const Making& making);

    layout::WidthRange widths() const override;
    int height(int width) const override;
    void placeTitle(const layout::Rect& title) override;

  protected:
    void show(const ui::Node& node) override;
};

}  // namespace vantrel::qt
