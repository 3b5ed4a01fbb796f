// Sections below one another, scrolling when there are too many.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class FormItem : public Item {
  public:
    FormItem(Stage& stage, ui::ElementID element, QWidget* parent);

    QWidget* childrenParent() const override;
    bool canShrink() const override { return true; }

  protected:
    void apply(const ui::Node&) override {}
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool contentExpands() const override { return true; }
    void arrange(const QRect& inside) override;
};

}  // namespace vantrel::qt
