// One of several options: a box that shows the chosen one, behind its label if it
// has one.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class PickerItem : public Item {
  public:
    explicit PickerItem(const Making& making);

    layout::WidthRange widths() const override;
    int height(int width) const override;
    bool expands() const override;

  protected:
    void show(const ui::Node& node) override;
    void arrange() override;

  private:
    void showChosen();
    int labelWidth(int width) const;
};

}  // namespace vantrel::qt
