#include "ui/appkit/TileControl.h"

#include <algorithm>

#include "ui/appkit/FlippedView.h"
#include "ui/appkit/Look.h"
#include "ui/appkit/Text.h"

// A button that draws its own background; what lies on it takes no clicks.
@interface VantrelTile : NSButton
- (void)showTile:(const vantrel::ui::Tile&)tile;
@end

@implementation VantrelTile {
    BOOL _isSelected;
    CGFloat _radius;
}

- (void)showTile:(const vantrel::ui::Tile&)tile {
    _isSelected = tile.isSelected;
    _radius = tile.cornerRadius;
    self.needsDisplay = YES;
}

- (BOOL)isFlipped {
    return YES;
}

// It has no layer's contents to update: it is drawn.
- (BOOL)wantsUpdateLayer {
    return NO;
}

- (NSView*)hitTest:(NSPoint)point {
    return [super hitTest:point] != nil ? self : nil;
}

- (void)drawRect:(NSRect)dirtyRect {
    (void)dirtyRect;
    namespace Look = vantrel::appkit::Look;
    NSColor* fill = _isSelected ? NSColor.controlAccentColor : NSColor.quaternaryLabelColor;
    if (self.highlighted) fill = [fill colorWithSystemEffect:NSColorSystemEffectPressed];
    Look::fillRounded(self.bounds, _radius, fill, nil);
}

- (NSRect)focusRingMaskBounds {
    return self.bounds;
}

- (void)drawFocusRingMask {
    [[NSBezierPath bezierPathWithRoundedRect:self.bounds xRadius:_radius yRadius:_radius] fill];
}

@end

namespace vantrel::appkit {
namespace {

constexpr int gap = 6;
constexpr int leastTitleWidth = 48;

}  // namespace

TileControl::TileControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[VantrelTile alloc] initWithFrame:NSZeroRect]),
      symbol_([[NSImageView alloc] initWithFrame:NSZeroRect]),
      title_([NSTextField labelWithString:@""]),
      badge_([[NSImageView alloc] initWithFrame:NSZeroRect]),
      action_([[VantrelAction alloc] initWithFunction:[this] { send(ui::Pressed{}); }]) {
    NSButton* const button = static_cast<NSButton*>(view());
    button.buttonType = NSButtonTypeMomentaryChange;
    button.bordered = NO;
    button.title = @"";
    button.target = action_;
    button.action = @selector(perform:);
    button.accessibilityRole = NSAccessibilityRadioButtonRole;
    title_.lineBreakMode = NSLineBreakByTruncatingTail;
    title_.allowsDefaultTighteningForTruncation = YES;
    for (NSView* const part in @[ symbol_, title_, badge_ ]) {
        // The button says it.
        part.accessibilityElement = NO;
        [button addSubview:part];
    }
}

TileControl::~TileControl() { [action_ forget]; }

NSColor* TileControl::ink() const {
    return tile().isSelected ? NSColor.alternateSelectedControlTextColor : NSColor.labelColor;
}

void TileControl::show(const ui::Node&) {
    [static_cast<VantrelTile*>(view()) showTile:tile()];
    symbol_.image = Look::symbol(tile().symbol, ui::Font::body);
    symbol_.contentTintColor = ink();
    title_.stringValue = textOf(tile().title);
    title_.font = Look::font(ui::Font::callout);
    title_.textColor = ink();
    const bool hasBadge = !tile().badge.empty();
    badge_.hidden = !hasBadge;
    badge_.image = hasBadge ? Look::symbol(tile().badge, ui::Font::caption) : nil;
    badge_.contentTintColor = ink();
    badge_.toolTip = hasBadge ? textOf(tile().badgeHelp) : nil;
    view().accessibilityValue = tile().isSelected ? @1 : @0;
}

int TileControl::around() const {
    const int badge = tile().badge.empty() ? 0 : gap + naturalWidths(badge_).natural;
    return 2 * tile().padding + naturalWidths(symbol_).natural + gap + badge;
}

layout::WidthRange TileControl::widths() const {
    const int title = naturalWidths(title_).natural;
    return {around() + std::min(title, leastTitleWidth), around() + title};
}

int TileControl::height(int) const {
    return 2 * tile().padding + std::max(naturalHeight(symbol_), naturalHeight(title_));
}

void TileControl::setFrame(const layout::Rect& frame) {
    AppKitControl::setFrame(frame);
    const auto put = [&frame](NSView* part, int x, int width) {
        const int height = naturalHeight(part);
        place(part, {x, (frame.height - height) / 2, width, height});
    };
    const int symbol = naturalWidths(symbol_).natural;
    const int title = std::max(0, frame.width - around());
    put(symbol_, tile().padding, symbol);
    put(title_, tile().padding + symbol + gap, title);
    if (!tile().badge.empty()) {
        const int badge = naturalWidths(badge_).natural;
        put(badge_, frame.width - tile().padding - badge, badge);
    }
    showWhole(title < naturalWidths(title_).natural, tile().title);
}

}  // namespace vantrel::appkit
