#include "ui/appkit/FlippedView.h"

#include <utility>

@implementation VantrelFlippedView {
    std::function<void()> _resized;
}

- (BOOL)isFlipped {
    return YES;
}

- (void)onResize:(std::function<void()>)action {
    _resized = std::move(action);
}

- (void)setFrameSize:(NSSize)size {
    const NSSize old = self.frame.size;
    [super setFrameSize:size];
    if (_resized && (old.width != size.width || old.height != size.height)) _resized();
}

@end
