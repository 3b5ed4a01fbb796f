// A line of text to edit. What a person is writing keeps its cursor.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class TextFieldItem : public Item {
  public:
    explicit TextFieldItem(const Making& making);

    layout::WidthRange widths() const override;
    int height(int width) const override;
    bool expands() const override { return true; }

  protected:
    void show(const ui::Node& node) override;

  private:
    void showText();
};

}  // namespace vantrel::qt
