// What the contents of a scroll or a form lie on.
#pragma once

#include "ui/qt/Item.h"

namespace vantrel::qt {

class ScrollItem : public Item {
  public:
    explicit ScrollItem(const Making& making);

    QWidget* childrenParent() const override;
    void setContentSize(int width, int height) override;
};

}  // namespace vantrel::qt
