// A text to read, in one line or in several.
#pragma once

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class TextControl : public AppKitControl {
  public:
    TextControl(layout::Stage& stage, ui::ElementID element);

    layout::WidthRange widths() const override;
    int height(int width) const override;
    void setBehindExpanding(bool isBehind) override;
    void setFrame(const layout::Rect& frame) override;

  protected:
    void show(const ui::Node& node) override;

  private:
    NSTextField* _Nonnull field() const { return static_cast<NSTextField*>(view()); }
    NSSize sizeIn(double width) const;
};

}  // namespace vantrel::appkit
