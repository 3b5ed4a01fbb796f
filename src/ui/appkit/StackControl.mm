#include "ui/appkit/StackControl.h"

#include "ui/appkit/FlippedView.h"
#include "ui/appkit/Look.h"

@interface VantrelPanel : VantrelFlippedView
- (void)showStack:(const vantrel::ui::Stack&)stack;
@end

@implementation VantrelPanel {
    vantrel::ui::Stack _stack;
}

- (void)showStack:(const vantrel::ui::Stack&)stack {
    _stack = stack;
    self.needsDisplay = YES;
}

- (void)drawRect:(NSRect)dirtyRect {
    (void)dirtyRect;
    namespace Look = vantrel::appkit::Look;
    switch (_stack.background) {
        case vantrel::ui::Background::none:
            break;
        case vantrel::ui::Background::card:
            Look::fillRounded(self.bounds, _stack.cornerRadius, Look::cardFill(), Look::cardBorder());
            break;
        case vantrel::ui::Background::warning:
            Look::fillRounded(self.bounds, _stack.cornerRadius, Look::warningFill(), nil);
            break;
    }
}

@end

namespace vantrel::appkit {

StackControl::StackControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[VantrelPanel alloc] initWithFrame:NSZeroRect]) {}

void StackControl::show(const ui::Node& node) {
    [static_cast<VantrelPanel*>(view()) showStack:std::get<ui::Stack>(node.element)];
}

}  // namespace vantrel::appkit
