// Room that pushes what is beside it apart.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class SpacerItem : public Item {
  public:
    SpacerItem(Stage& stage, ui::ElementID element, QWidget* parent)
        : Item(stage, element, new QWidget(parent)) {}

    bool expandsVertically() const override { return true; }

  protected:
    void apply(const ui::Node&) override { widget()->setAttribute(Qt::WA_TransparentForMouseEvents); }
    WidthRange contentWidths() const override { return {}; }
    int contentHeight(int) const override { return 0; }
    bool contentExpands() const override { return true; }
};

}  // namespace vantrel::qt
