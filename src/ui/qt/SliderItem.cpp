#include "ui/qt/SliderItem.h"

#include "ui/qt/Look.h"
#include "ui/qt/SliderWidget.h"

namespace vantrel::qt {

SliderItem::SliderItem(const Making& making) : Item(making, new SliderWidget(making.parent)) {
    static_cast<SliderWidget*>(widget())->onSlide([this](double value) { send(ui::Slid{value}); });
}

void SliderItem::show(const ui::Node& node) {
    static_cast<SliderWidget*>(widget())->show(std::get<ui::Slider>(node.element),
                                               QString::fromStdString(node.accessibility.value));
}

layout::WidthRange SliderItem::widths() const {
    const int width = Look::current().pixels(metrics::sliderMinimumWidth);
    return {width, width};
}

int SliderItem::height(int) const { return Look::current().pixels(metrics::sliderHeight); }

}  // namespace vantrel::qt
