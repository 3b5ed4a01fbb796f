#include "ui/appkit/ScrollControl.h"

#include "ui/appkit/FlippedView.h"

// Its scroller lies over the contents, whose width it must not change, also when the
// system comes to prefer another one because a mouse was plugged in.
@interface VantrelScrollView : NSScrollView
@end

@implementation VantrelScrollView

- (void)setScrollerStyle:(NSScrollerStyle)style {
    (void)style;
    [super setScrollerStyle:NSScrollerStyleOverlay];
}

@end

namespace vantrel::appkit {

ScrollControl::ScrollControl(layout::Stage& stage, ui::ElementID element)
    : AppKitControl(stage, element, [[VantrelScrollView alloc] initWithFrame:NSZeroRect]),
      document_([[FlippedView alloc] initWithFrame:NSZeroRect]) {
    NSScrollView* const scroll = static_cast<NSScrollView*>(view());
    scroll.drawsBackground = NO;
    scroll.borderType = NSNoBorder;
    scroll.hasVerticalScroller = YES;
    scroll.hasHorizontalScroller = NO;
    scroll.autohidesScrollers = YES;
    scroll.automaticallyAdjustsContentInsets = NO;
    scroll.scrollerStyle = NSScrollerStyleOverlay;
    scroll.horizontalScrollElasticity = NSScrollElasticityNone;
    scroll.documentView = document_;
}

void ScrollControl::setContentSize(int width, int height) {
    document_.frame = NSMakeRect(0, 0, width, height);
}

}  // namespace vantrel::appkit
