// A text, in one line or over several.
#pragma once

#include "ui/qt/Item.h"
#include "ui/qt/TextLines.h"

namespace vantrel::qt {

class TextItem : public Item {
  public:
    explicit TextItem(const Making& making);

    void setBehindExpanding(bool isBehind) override;
    layout::WidthRange widths() const override;
    int height(int width) const override;

  protected:
    void show(const ui::Node& node) override;
    void arrange() override;
};

}  // namespace vantrel::qt
