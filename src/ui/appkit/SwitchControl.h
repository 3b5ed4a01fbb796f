// A switch, behind its label if it has one. A press asks for the other state; the
// node says whether it comes.
#pragma once

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class SwitchControl : public AppKitControl {
  public:
    SwitchControl(layout::Stage& stage, ui::ElementID element);
    ~SwitchControl() override;

    NSView* _Nonnull operatedView() const override { return switch_; }
    layout::WidthRange widths() const override;
    int height(int width) const override;
    bool expands() const override;
    void setFrame(const layout::Rect& frame) override;

  protected:
    void show(const ui::Node& node) override;

  private:
    void showState();
    int labelWidth(int width) const;

    NSTextField* _Nonnull label_;
    NSSwitch* _Nonnull switch_;
    Action* _Nonnull action_;
};

}  // namespace vantrel::appkit
