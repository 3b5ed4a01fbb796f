#include "ui/appkit/SectionControl.h"

#include "ui/appkit/FlippedView.h"
#include "ui/appkit/Look.h"
#include "ui/appkit/Text.h"
#include "ui/layout/Metrics.h"

@interface VantrelGroup : VantrelFlippedView
- (void)showPanel:(NSRect)panel lines:(const std::vector<int>&)lines;
@end

@implementation VantrelGroup {
    NSRect _panel;
    std::vector<int> _lines;
}

- (void)showPanel:(NSRect)panel lines:(const std::vector<int>&)lines {
    _panel = panel;
    _lines = lines;
    self.needsDisplay = YES;
}

- (void)drawRect:(NSRect)dirtyRect {
    (void)dirtyRect;
    namespace Look = vantrel::appkit::Look;
    constexpr CGFloat indent = vantrel::layout::metrics::rowHorizontalPadding;
    Look::fillRounded(_panel, 10, Look::cardFill(), Look::cardBorder());
    [NSColor.separatorColor setFill];
    for (const int line : _lines) {
        NSRectFillUsingOperation(NSMakeRect(NSMinX(_panel) + indent, line, NSWidth(_panel) - 2 * indent, 1),
                                 NSCompositingOperationSourceOver);
    }
}

@end

namespace vantrel::appkit {

SectionControl::SectionControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[VantrelGroup alloc] initWithFrame:NSZeroRect]),
      title_([NSTextField labelWithString:@""]) {
    title_.font = Look::font(ui::Font::title);
    title_.lineBreakMode = NSLineBreakByTruncatingTail;
    [view() addSubview:title_];
    view().accessibilityElement = YES;
    view().accessibilityRole = NSAccessibilityGroupRole;
}

void SectionControl::show(const ui::Node& node) {
    title_.stringValue = textOf(std::get<ui::Section>(node.element).title);
    view().accessibilityLabel = title_.stringValue;
}

layout::WidthRange SectionControl::widths() const {
    return {0, title_.stringValue.length == 0 ? 0 : naturalWidths(title_).natural};
}

int SectionControl::height(int) const { return title_.stringValue.length == 0 ? 0 : naturalHeight(title_); }

void SectionControl::placeTitle(const layout::Rect& title) { place(title_, title); }

void SectionControl::showPanel(const layout::Rect& panel, const std::vector<int>& lines) {
    [static_cast<VantrelGroup*>(view()) showPanel:rectangleOf(panel) lines:lines];
}

}  // namespace vantrel::appkit
