// One of several options: a button that shows the chosen one, behind its label if it
// has one.
#pragma once

#include <string>
#include <vector>

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class PickerControl : public AppKitControl {
  public:
    PickerControl(layout::Stage& stage, ui::ElementID element);

    NSView* _Nonnull operatedView() const override { return button_; }
    layout::WidthRange widths() const override;
    int height(int width) const override;
    bool expands() const override { return hasLabel(); }
    void setFrame(const layout::Rect& frame) override;

  protected:
    void show(const ui::Node& node) override;

  private:
    const ui::Picker& picker() const;
    bool hasLabel() const { return !picker().title.empty(); }
    void choose(std::size_t option);
    void showChosen();
    int buttonWidth(int width) const;

    NSTextField* _Nonnull label_;
    NSPopUpButton* _Nonnull button_;
    std::vector<std::string> options_;
};

}  // namespace vantrel::appkit
