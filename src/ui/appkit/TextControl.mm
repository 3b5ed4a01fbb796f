#include "ui/appkit/TextControl.h"

#include <algorithm>
#include <cmath>

#include "ui/appkit/Look.h"
#include "ui/appkit/Text.h"

namespace vantrel::appkit {
namespace {

// Enough to show something, in points.
constexpr int leastWidth = 48;
// What a label keeps free on each side of its text.
constexpr int margin = 2;

}  // namespace

TextControl::TextControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [NSTextField labelWithString:@""]) {}

void TextControl::show(const ui::Node& node) {
    const auto& text = std::get<ui::Text>(node.element);
    NSTextField* const label = field();
    label.font = Look::font(text.font);
    label.textColor = Look::tone(text.tone);
    label.selectable = text.isSelectable;
    label.usesSingleLineMode = !text.wraps;
    label.maximumNumberOfLines = text.wraps ? 0 : 1;
    // Before what says how: it knows clipping only.
    label.cell.wraps = text.wraps;
    label.lineBreakMode = text.wraps ? NSLineBreakByWordWrapping : NSLineBreakByTruncatingTail;
    label.allowsDefaultTighteningForTruncation = YES;
    // Setting it would drop what a person has selected.
    NSString* const wanted = textOf(text.text);
    if (![label.stringValue isEqualToString:wanted]) label.stringValue = wanted;
}

NSSize TextControl::sizeIn(double width) const {
    const NSSize size = textSize(field(), width + 2 * margin);
    return NSMakeSize(size.width - 2 * margin, size.height);
}

layout::WidthRange TextControl::widths() const {
    const int natural = static_cast<int>(std::ceil(sizeIn(unlimited).width));
    return {std::min(natural, leastWidth), natural};
}

int TextControl::height(int width) const { return static_cast<int>(std::ceil(sizeIn(width).height)); }

// So that the numbers beside sliders end below one another.
void TextControl::setBehindExpanding(bool isBehind) {
    field().alignment = isBehind ? NSTextAlignmentRight : NSTextAlignmentNatural;
}

void TextControl::setFrame(const layout::Rect& frame) {
    // What is seen of it fills the frame.
    view().frame = NSInsetRect(rectangleOf(frame), -margin, 0);
    const auto& text = std::get<ui::Text>(node().element);
    showWhole(!text.wraps && frame.width < widths().natural, text.text);
}

}  // namespace vantrel::appkit
