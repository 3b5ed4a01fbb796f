// A title above a panel with lines between its rows.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class SectionItem : public Item {
  public:
    explicit SectionItem(const Making& making);

    int height(int width) const override;
    void placeTitle(const layout::Rect& title) override;
    void showPanel(const layout::Rect& panel, const std::vector<int>& lines) override;

  protected:
    void show(const ui::Node& node) override;
};

}  // namespace vantrel::qt
