// Room that pushes what is beside it apart.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class SpacerItem : public Item {
  public:
    explicit SpacerItem(const Making& making) : Item(making, new QWidget(making.parent)) {}

  protected:
    void show(const ui::Node&) override { widget()->setAttribute(Qt::WA_TransparentForMouseEvents); }
};

}  // namespace vantrel::qt
