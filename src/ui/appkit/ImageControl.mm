#include "ui/appkit/ImageControl.h"

#include "ui/appkit/Look.h"

namespace vantrel::appkit {

ImageControl::ImageControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[NSImageView alloc] initWithFrame:NSZeroRect]) {}

void ImageControl::show(const ui::Node& node) {
    const auto& image = std::get<ui::Image>(node.element);
    NSImageView* const picture = static_cast<NSImageView*>(view());
    const bool fills = node.layout.width > 0 && node.layout.height > 0;
    picture.image = Look::symbol(image.symbol, image.font);
    picture.imageScaling = fills ? NSImageScaleProportionallyUpOrDown : NSImageScaleProportionallyDown;
    picture.contentTintColor = Look::tone(image.tone);
    // A picture without a name is beside a text that says it.
    picture.accessibilityElement = !node.accessibility.name.empty();
}

layout::WidthRange ImageControl::widths() const { return naturalWidths(view()); }

int ImageControl::height(int) const { return naturalHeight(view()); }

}  // namespace vantrel::appkit
