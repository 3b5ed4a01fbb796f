// One of several options: a box that shows the chosen one, behind its label if it
// has one.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class PickerItem : public Item {
  public:
    PickerItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool contentExpands() const override;
    void arrange(const QRect& inside) override;

  private:
    void showChosen();
    int labelWidth(int width) const;
};

}  // namespace vantrel::qt
