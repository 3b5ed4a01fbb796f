// What the children of a stack or a grid lie on: painted if the node says so.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class PanelItem : public Item {
  public:
    explicit PanelItem(const Making& making);

  protected:
    void show(const ui::Node& node) override;
};

}  // namespace vantrel::qt
