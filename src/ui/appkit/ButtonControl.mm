#include "ui/appkit/ButtonControl.h"

#include <algorithm>

#include "ui/appkit/Look.h"
#include "ui/appkit/Text.h"

namespace vantrel::appkit {
namespace {

// What is beside it gives way first, unless the title is very long. In points.
constexpr int widthKept = 120;
// A symbol alone is smaller than what a pointer hits easily.
constexpr int symbolSide = 22;

NSCellImagePosition imagePosition(const ui::Button& button) {
    if (button.symbol.empty()) return NSNoImage;
    return button.title.empty() ? NSImageOnly : NSImageLeading;
}

}  // namespace

ButtonControl::ButtonControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[NSButton alloc] initWithFrame:NSZeroRect]),
      action_([[VantrelAction alloc] initWithFunction:[this] { send(ui::Pressed{}); }]) {
    NSButton* const button = static_cast<NSButton*>(view());
    button.buttonType = NSButtonTypeMomentaryPushIn;
    button.bezelStyle = NSBezelStyleRounded;
    button.lineBreakMode = NSLineBreakByTruncatingTail;
    button.target = action_;
    button.action = @selector(perform:);
}

ButtonControl::~ButtonControl() { [action_ forget]; }

void ButtonControl::show(const ui::Node& node) {
    const auto& shown = std::get<ui::Button>(node.element);
    NSButton* const button = static_cast<NSButton*>(view());
    button.title = textOf(shown.title);
    button.font = Look::font(shown.font);
    button.controlSize = Look::controlSize(shown.font);
    button.image = shown.symbol.empty() ? nil : Look::symbol(shown.symbol, shown.font);
    button.imagePosition = imagePosition(shown);
    button.bordered = shown.style != ui::Button::Style::borderless;
    // Coloured, but not what the Return key presses: nobody loses a picture by that.
    button.bezelColor = shown.style == ui::Button::Style::prominent ? NSColor.controlAccentColor : nil;
}

bool ButtonControl::isSymbolOnly() const { return std::get<ui::Button>(node().element).title.empty(); }

layout::WidthRange ButtonControl::widths() const {
    const int natural = naturalWidths(view()).natural;
    if (!isSymbolOnly()) return {std::min(natural, widthKept), natural};
    const int width = std::max(natural, symbolSide);
    return {width, width};
}

int ButtonControl::height(int) const {
    const int natural = naturalHeight(view());
    return isSymbolOnly() ? std::max(natural, symbolSide) : natural;
}

void ButtonControl::setFrame(const layout::Rect& frame) {
    AppKitControl::setFrame(frame);
    showWhole(frame.width < widths().natural, std::get<ui::Button>(node().element).title);
}

}  // namespace vantrel::appkit
