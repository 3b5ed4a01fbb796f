// Shows a part of what lies in it: a list that may be too high, or a form.
#pragma once

#include "ui/appkit/AppKitControl.h"

namespace vantrel::appkit {

class ScrollControl : public AppKitControl {
  public:
    ScrollControl(layout::Stage& stage, ui::ElementID element);

    NSView* _Nonnull childrenView() const override { return document_; }
    void setContentSize(int width, int height) override;

  protected:
    void show(const ui::Node&) override {}

  private:
    NSView* _Nonnull document_;
};

}  // namespace vantrel::appkit
