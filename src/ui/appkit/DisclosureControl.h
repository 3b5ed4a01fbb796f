// A triangle and a title that open and close what is below them.
#pragma once

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class DisclosureControl : public AppKitControl {
  public:
    DisclosureControl(layout::Stage& stage, ui::ElementID element);
    ~DisclosureControl() override;

    NSView* _Nonnull operatedView() const override { return triangle_; }
    layout::WidthRange widths() const override;
    int height(int width) const override;
    bool expands() const override { return true; }
    void placeTitle(const layout::Rect& title) override;

  protected:
    void show(const ui::Node& node) override;

  private:
    void showState();

    NSButton* _Nonnull triangle_;
    // A press on it does the same; the keyboard needs one of both only.
    NSButton* _Nonnull title_;
    Action* _Nonnull action_;
};

}  // namespace vantrel::appkit
