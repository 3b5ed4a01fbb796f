#include "ui/appkit/PickerControl.h"

#include <algorithm>

#include "ui/appkit/FlippedView.h"
#include "ui/appkit/Look.h"
#include "ui/appkit/Menus.h"
#include "ui/appkit/Text.h"

namespace vantrel::appkit {
namespace {

constexpr int gap = 12;
constexpr int leastButtonWidth = 84;
constexpr int leastLabelWidth = 48;
constexpr NSInteger none = -1;

}  // namespace

PickerControl::PickerControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[FlippedView alloc] initWithFrame:NSZeroRect]),
      label_([NSTextField labelWithString:@""]),
      button_([[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:NO]) {
    label_.font = Look::font(ui::Font::body);
    label_.lineBreakMode = NSLineBreakByTruncatingTail;
    label_.allowsExpansionToolTips = YES;
    // The button says it.
    label_.accessibilityElement = NO;
    button_.lineBreakMode = NSLineBreakByTruncatingTail;
    [view() addSubview:label_];
    [view() addSubview:button_];
}

const ui::Picker& PickerControl::picker() const { return std::get<ui::Picker>(node().element); }

void PickerControl::choose(std::size_t option) {
    const bool isOther = picker().selected != option;
    // The node says what is chosen.
    showChosen();
    if (isOther) send(ui::Chosen{option});
}

void PickerControl::show(const ui::Node& node) {
    label_.stringValue = textOf(picker().title);
    label_.textColor = node.isEnabled ? NSColor.labelColor : NSColor.disabledControlTextColor;
    // An open menu stays open.
    if (button_.menu == nil || options_ != picker().options) {
        // Open, it would offer what isn't there any more.
        [button_.menu cancelTracking];
        options_ = picker().options;
        button_.menu = menuOf(options_, lifeline().guard([this](std::size_t option) { choose(option); }));
    }
    showChosen();
}

void PickerControl::showChosen() {
    const auto& selected = picker().selected;
    [button_ selectItemAtIndex:selected ? static_cast<NSInteger>(*selected) : none];
}

int PickerControl::buttonWidth(int width) const {
    if (!hasLabel()) return width;
    const int label = naturalWidths(label_).natural;
    const int wanted = naturalWidths(button_).natural;
    // Its natural width as long as that leaves the label half of it all.
    const int least = std::min(wanted, leastButtonWidth);
    return std::clamp(wanted, least, std::max({least, width - gap - label, width / 2}));
}

layout::WidthRange PickerControl::widths() const {
    const int button = naturalWidths(button_).natural;
    if (!hasLabel()) return {std::min(button, leastButtonWidth), button};
    const int label = naturalWidths(label_).natural;
    return {leastButtonWidth + gap + std::min(label, leastLabelWidth), button + gap + label};
}

int PickerControl::height(int) const { return std::max(naturalHeight(label_), naturalHeight(button_)); }

void PickerControl::setFrame(const layout::Rect& frame) {
    AppKitControl::setFrame(frame);
    const int width = buttonWidth(frame.width);
    const int high = naturalHeight(button_);
    const int labelHigh = naturalHeight(label_);
    const int left = std::max(0, frame.width - width - gap);
    place(label_, {0, (frame.height - labelHigh) / 2, left, labelHigh});
    place(button_, {frame.width - width, (frame.height - high) / 2, width, high});
    const bool isCut = picker().selected && width < naturalWidths(button_).natural;
    showWhole(isCut, isCut ? picker().options[*picker().selected] : std::string());
}

}  // namespace vantrel::appkit
