// A button with a title, a symbol, or both.
#pragma once

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class ButtonControl : public AppKitControl {
  public:
    ButtonControl(layout::Stage& stage, ui::ElementID element);
    ~ButtonControl() override;

    layout::WidthRange widths() const override;
    int height(int width) const override;
    void setFrame(const layout::Rect& frame) override;

  protected:
    void show(const ui::Node& node) override;

  private:
    bool isSymbolOnly() const;

    Action* _Nonnull action_;
};

}  // namespace vantrel::appkit
