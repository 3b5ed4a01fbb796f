#include "ui/qt/SliderItem.h"

#include "ui/qt/Look.h"
#include "ui/qt/SliderWidget.h"

namespace vantrel::qt {

SliderItem::SliderItem(Stage& stage, ui::ElementID element, QWidget* parent)
    : Item(stage, element, new SliderWidget(parent)) {
    static_cast<SliderWidget*>(widget())->onSlide([this](double value) { send(ui::Slid{value}); });
}

void SliderItem::apply(const ui::Node& node) {
    static_cast<SliderWidget*>(widget())->show(std::get<ui::Slider>(node.element),
                                               QString::fromStdString(node.accessibility.value));
}

WidthRange SliderItem::contentWidths() const {
    const int width = Look::current().pixels(metrics::sliderMinimumWidth);
    return {width, width};
}

int SliderItem::contentHeight(int) const { return Look::current().pixels(metrics::sliderHeight); }

}  // namespace vantrel::qt
