// A text, in one line or over several.
#pragma once

#include "ui/qt/Item.h"
#include "ui/qt/TextLines.h"

namespace vantrel::qt {

class TextItem : public Item {
  public:
    TextItem(Stage& stage, ui::ElementID element, QWidget* parent);

    void setBehindExpanding(bool isBehind) override;

  protected:
    void apply(const ui::Node& node) override;
    WidthRange contentWidths() const override;
    int contentHeight(int width) const override;
    void arrange(const QRect& inside) override;
};

}  // namespace vantrel::qt
