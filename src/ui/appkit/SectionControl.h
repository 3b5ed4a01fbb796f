// A titled panel of rows with lines between them.
#pragma once

#include <vector>

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class SectionControl : public AppKitControl {
  public:
    SectionControl(layout::Stage& stage, ui::ElementID element);

    layout::WidthRange widths() const override;
    int height(int width) const override;
    void placeTitle(const layout::Rect& title) override;
    void showPanel(const layout::Rect& panel, const std::vector<int>& lines) override;

  protected:
    void show(const ui::Node& node) override;

  private:
    NSTextField* _Nonnull title_;
};

}  // namespace vantrel::appkit
