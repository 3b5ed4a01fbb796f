// As high as its contents, up to a limit; then it scrolls.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class ScrollItem : public Item {
  public:
    ScrollItem(Stage& stage, ui::ElementID element, QWidget* parent);

    QWidget* childrenParent() const override;
    bool canShrink() const override { return true; }

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool contentExpands() const override { return true; }
    void arrange(const QRect& inside) override;

  private:
    int wholeHeight(int width) const;

    ui::Scroll scroll_;
};

}  // namespace vantrel::qt
