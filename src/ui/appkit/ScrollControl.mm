#include "ui/appkit/ScrollControl.h"

#include "ui/appkit/FlippedView.h"

namespace vantrel::appkit {

ScrollControl::ScrollControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[NSScrollView alloc] initWithFrame:NSZeroRect]),
      document_([[FlippedView alloc] initWithFrame:NSZeroRect]) {
    NSScrollView* const scroll = static_cast<NSScrollView*>(view());
    scroll.drawsBackground = NO;
    scroll.borderType = NSNoBorder;
    scroll.hasVerticalScroller = YES;
    scroll.hasHorizontalScroller = NO;
    scroll.autohidesScrollers = YES;
    // Over the contents, whose width it must not change.
    scroll.scrollerStyle = NSScrollerStyleOverlay;
    scroll.horizontalScrollElasticity = NSScrollElasticityNone;
    scroll.documentView = document_;
}

void ScrollControl::setContentSize(int width, int height) {
    document_.frame = NSMakeRect(0, 0, width, height);
}

}  // namespace vantrel::appkit
