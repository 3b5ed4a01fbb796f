#include "ui/appkit/AppKitWindow.h"

#include <algorithm>

#include "ui/appkit/Text.h"

namespace vantrel::appkit {
namespace {

// Without a view controller, which could have a size in mind.
NSWindow* windowOf(NSView* contents) {
    const NSWindowStyleMask style =
        NSWindowStyleMaskTitled | NSWindowStyleMaskClosable | NSWindowStyleMaskMiniaturizable;
    NSWindow* const window = [[NSWindow alloc] initWithContentRect:NSZeroRect
                                                         styleMask:style
                                                           backing:NSBackingStoreBuffered
                                                             defer:YES];
    window.contentView = contents;
    return window;
}

}  // namespace

AppKitWindow::AppKitWindow(const std::string& title) : window_(windowOf(view_.view())) {
    window_.title = textOf(title);
    window_.releasedWhenClosed = NO;
    window_.initialFirstResponder = view_.view();
    view_.onFinish([this] { fit(); });
}

AppKitWindow::~AppKitWindow() {
    view_.onFinish({});
    [window_ close];
}

// Its title bar stays where it is, unless its bottom would leave the screen.
void AppKitWindow::fit() {
    const ui::Size wanted = view_.fittingSize();
    NSRect frame = [window_ frameRectForContentRect:NSMakeRect(0, 0, wanted.width, wanted.height)];
    NSScreen* const screen = window_.screen != nil ? window_.screen : NSScreen.mainScreen;
    if (screen != nil) frame.size.height = std::min(frame.size.height, screen.visibleFrame.size.height);
    const NSRect old = window_.frame;
    if (NSEqualSizes(frame.size, old.size)) return;
    frame.origin = NSMakePoint(NSMinX(old), NSMaxY(old) - frame.size.height);
    if (screen != nil) frame.origin.y = std::max(frame.origin.y, NSMinY(screen.visibleFrame));
    [window_ setFrame:frame display:YES];
}

void AppKitWindow::show() {
    fit();
    if (!wasShown_) [window_ center];
    wasShown_ = true;
    if (window_.miniaturized) [window_ deminiaturize:nil];
    [window_ makeKeyAndOrderFront:nil];
    // The system may let the program wait before it is the active one.
    [window_ orderFrontRegardless];
}

}  // namespace vantrel::appkit
