// A view whose coordinates begin at its top left corner, as those of a layout do.
// Threads: main thread.
#pragma once

#import <AppKit/AppKit.h>
#include <functional>

@interface VantrelFlippedView : NSView
// Called when its size has changed; may be empty.
- (void)onResize:(std::function<void()>)action;
@end

namespace vantrel::appkit {

using FlippedView = VantrelFlippedView;

}  // namespace vantrel::appkit
