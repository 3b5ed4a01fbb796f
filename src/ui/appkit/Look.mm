#include "ui/appkit/Look.h"

#include "runtime/Fatal.h"
#include "ui/appkit/Text.h"

namespace vantrel::appkit::Look {
namespace {

NSFontTextStyle styleOf(ui::Font kind) {
    switch (kind) {
        case ui::Font::headline:
            return NSFontTextStyleTitle3;
        case ui::Font::title:
            return NSFontTextStyleHeadline;
        case ui::Font::body:
            return NSFontTextStyleBody;
        case ui::Font::callout:
            return NSFontTextStyleCallout;
        case ui::Font::caption:
            return NSFontTextStyleSubheadline;
    }
    runtime::fatal("no such font");
}

}  // namespace

NSFont* font(ui::Font kind) { return [NSFont preferredFontForTextStyle:styleOf(kind) options:@{}]; }

NSColor* tone(ui::Tone tone) {
    switch (tone) {
        case ui::Tone::primary:
            return NSColor.labelColor;
        case ui::Tone::secondary:
            return NSColor.secondaryLabelColor;
        case ui::Tone::warning:
            return NSColor.systemOrangeColor;
    }
    runtime::fatal("no such tone");
}

NSControlSize controlSize(ui::Font kind) {
    const bool isSmall = kind == ui::Font::callout || kind == ui::Font::caption;
    return isSmall ? NSControlSizeSmall : NSControlSizeRegular;
}

NSImage* symbol(const ui::Symbol& name, ui::Font kind) {
    if (name == ui::applicationIcon) {
        NSImage* const icon = [NSImage imageNamed:NSImageNameApplicationIcon];
        return icon != nil ? icon : [[NSImage alloc] initWithSize:NSZeroSize];
    }
    // The name of a symbol says nothing to a person; the node does.
    NSImage* const plain = [NSImage imageWithSystemSymbolName:textOf(name) accessibilityDescription:nil];
    NSImageSymbolConfiguration* const configuration =
        [NSImageSymbolConfiguration configurationWithTextStyle:styleOf(kind)];
    NSImage* const sized = [plain imageWithSymbolConfiguration:configuration];
    if (sized != nil) return sized;
    return plain != nil ? plain : [[NSImage alloc] initWithSize:NSZeroSize];
}

NSColor* cardFill() { return [NSColor.labelColor colorWithAlphaComponent:0.05]; }
NSColor* cardBorder() { return [NSColor.labelColor colorWithAlphaComponent:0.1]; }
NSColor* warningFill() { return [NSColor.systemOrangeColor colorWithAlphaComponent:0.12]; }

void fillRounded(NSRect rectangle, double radius, NSColor* fill, NSColor* border) {
    [fill setFill];
    [[NSBezierPath bezierPathWithRoundedRect:rectangle xRadius:radius yRadius:radius] fill];
    if (border == nil) return;
    [border setStroke];
    // In the middle of its line's width.
    [[NSBezierPath bezierPathWithRoundedRect:NSInsetRect(rectangle, 0.5, 0.5)
                                     xRadius:radius - 0.5
                                     yRadius:radius - 0.5] stroke];
}

}  // namespace vantrel::appkit::Look
