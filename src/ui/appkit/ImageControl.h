// A symbol, as large as a letter of its font or as its place.
#pragma once

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class ImageControl : public AppKitControl {
  public:
    ImageControl(layout::Stage& stage, ui::ElementID element);

    layout::WidthRange widths() const override;
    int height(int width) const override;

  protected:
    void show(const ui::Node& node) override;
};

}  // namespace vantrel::appkit
