#include "ui/appkit/SwitchControl.h"

#include <algorithm>
#include <cmath>

#include "ui/appkit/FlippedView.h"
#include "ui/appkit/Look.h"
#include "ui/appkit/Text.h"

namespace vantrel::appkit {
namespace {

constexpr int gap = 12;
// Enough of a label to show something.
constexpr int leastLabelWidth = 48;

int heightIn(NSTextField* label, int width) {
    return static_cast<int>(std::ceil(textSize(label, width).height));
}

}  // namespace

SwitchControl::SwitchControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[FlippedView alloc] initWithFrame:NSZeroRect]),
      label_([NSTextField wrappingLabelWithString:@""]),
      switch_([[NSSwitch alloc] initWithFrame:NSZeroRect]),
      action_([[VantrelAction alloc]
          initWithFunction:[this] { send(ui::Toggled{!std::get<ui::Switch>(this->node().element).isOn}); }]) {
    label_.font = Look::font(ui::Font::body);
    label_.selectable = NO;
    // The switch says it.
    label_.accessibilityElement = NO;
    switch_.controlSize = NSControlSizeMini;
    switch_.target = action_;
    switch_.action = @selector(perform:);
    [view() addSubview:label_];
    [view() addSubview:switch_];
}

SwitchControl::~SwitchControl() { [action_ forget]; }

void SwitchControl::show(const ui::Node& node) {
    label_.stringValue = textOf(std::get<ui::Switch>(node.element).title);
    label_.textColor = node.isEnabled ? NSColor.labelColor : NSColor.disabledControlTextColor;
    showState();
}

void SwitchControl::showState() {
    const bool isOn = std::get<ui::Switch>(node().element).isOn;
    switch_.state = isOn ? NSControlStateValueOn : NSControlStateValueOff;
}

bool SwitchControl::expands() const { return label_.stringValue.length > 0; }

int SwitchControl::labelWidth(int width) const {
    return std::max(0, width - gap - naturalWidths(switch_).natural);
}

layout::WidthRange SwitchControl::widths() const {
    const int own = naturalWidths(switch_).natural;
    if (!expands()) return {own, own};
    const int label = static_cast<int>(std::ceil(textSize(label_, unlimited).width));
    return {own + gap + std::min(label, leastLabelWidth), own + gap + label};
}

int SwitchControl::height(int width) const {
    const int own = naturalHeight(switch_);
    return expands() ? std::max(own, heightIn(label_, labelWidth(width))) : own;
}

void SwitchControl::setFrame(const layout::Rect& frame) {
    AppKitControl::setFrame(frame);
    const int width = naturalWidths(switch_).natural;
    const int height = naturalHeight(switch_);
    const int labelHigh = heightIn(label_, labelWidth(frame.width));
    place(label_, {0, (frame.height - labelHigh) / 2, labelWidth(frame.width), labelHigh});
    place(switch_, {frame.width - width, (frame.height - height) / 2, width, height});
}

}  // namespace vantrel::appkit
