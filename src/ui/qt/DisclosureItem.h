// A title that opens and closes what is below it.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class DisclosureItem : public Item {
  public:
    DisclosureItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool contentExpands() const override { return true; }
    bool isContainer() const override { return true; }
    void arrange(const QRect& inside) override;
};

}  // namespace vantrel::qt
