// A line of text to edit. What a person is writing keeps its cursor.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class TextFieldItem : public Item {
  public:
    TextFieldItem(Stage& stage, ui::ElementID element, QWidget* parent);

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    bool contentExpands() const override { return true; }

  private:
    void showText();
};

}  // namespace vantrel::qt
