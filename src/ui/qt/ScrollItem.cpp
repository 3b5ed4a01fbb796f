#include "ui/qt/ScrollItem.h"

#include "ui/qt/ScrollView.h"

namespace vantrel::qt {

ScrollItem::ScrollItem(const Making& making) : Item(making, new ScrollView(making.parent)) {}

QWidget* ScrollItem::childrenParent() const { return static_cast<ScrollView*>(widget())->widget(); }

void ScrollItem::setContentSize(int width, int height) {
    static_cast<ScrollView*>(widget())->setContentSize({width, height});
}

}  // namespace vantrel::qt
