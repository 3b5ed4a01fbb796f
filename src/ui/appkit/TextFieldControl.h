// A line of text to edit. What a person is writing keeps its cursor.
#pragma once

#include "ui/appkit/AppKitControl.h"

@class VantrelFieldDelegate;

namespace vantrel::appkit {

class TextFieldControl : public AppKitControl {
  public:
    TextFieldControl(layout::Stage& stage, ui::ElementID element);
    ~TextFieldControl() override;

    layout::WidthRange widths() const override;
    int height(int) const override { return naturalHeight(view()); }
    bool expands() const override { return true; }

  protected:
    void show(const ui::Node& node) override;

  private:
    NSTextField* _Nonnull field() const { return static_cast<NSTextField*>(view()); }
    void showText();

    // A field doesn't own its delegate.
    VantrelFieldDelegate* _Nonnull delegate_;
};

}  // namespace vantrel::appkit
