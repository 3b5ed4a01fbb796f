#include "views/ValueSlider.h"

#include <algorithm>
#include <utility>

#include "ui/Nodes.h"

namespace vantrel::views {

using ui::Font;
using ui::Node;

ui::Node valueSlider(ValueSlider slider) {
    const std::string label = slider.format.label(slider.value);
    Node control{.element = ui::Slider{.value = std::clamp(slider.value, slider.minimum, slider.maximum),
                                       .minimum = slider.minimum,
                                       .maximum = slider.maximum,
                                       .step = slider.format.step(),
                                       .wheelStep = slider.format.wheelStep()}};
    return ui::row(8,
                   {
                       ui::image(slider.symbol).width(18),
                       std::move(control)
                           .onSlide(std::move(slider.onChange))
                           .named(std::move(slider.name))
                           .valued(label)
                           .withHelp(std::move(slider.help))
                           .fillWidth(),
                       ui::text(label, Font::callout, ui::Tone::secondary).width(34),
                   })
        .fillWidth();
}

}  // namespace vantrel::views
