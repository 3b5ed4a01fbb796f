// A switch that is on or off, behind its label if it has one. A press asks for the
// other state; the node says whether it comes.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class SwitchItem : public Item {
  public:
    explicit SwitchItem(const Making& making);

    layout::WidthRange widths() const override;
    int height(int width) const override;
    bool expands() const override;

  protected:
    void show(const ui::Node& node) override;
};

}  // namespace vantrel::qt
