#include "ui/appkit/AppKitWindow.h"

#include <algorithm>

#include "ui/appkit/Text.h"

namespace vantrel::appkit {
namespace {

NSWindow* windowOf(NSView* contents) {
    NSViewController* const controller = [[NSViewController alloc] initWithNibName:nil bundle:nil];
    controller.view = contents;
    return [NSWindow windowWithContentViewController:controller];
}

}  // namespace

AppKitWindow::AppKitWindow(const std::string& title) : window_(windowOf(view_.view())) {
    window_.title = textOf(title);
    window_.styleMask = NSWindowStyleMaskTitled | NSWindowStyleMaskClosable | NSWindowStyleMaskMiniaturizable;
    window_.releasedWhenClosed = NO;
    window_.initialFirstResponder = view_.view();
    view_.onFinish([this] { fit(); });
}

AppKitWindow::~AppKitWindow() {
    view_.onFinish({});
    [window_ close];
}

// Its title bar stays where it is.
void AppKitWindow::fit() {
    const ui::Size wanted = view_.fittingSize();
    NSRect frame = [window_ frameRectForContentRect:NSMakeRect(0, 0, wanted.width, wanted.height)];
    NSScreen* const screen = window_.screen != nil ? window_.screen : NSScreen.mainScreen;
    if (screen != nil) frame.size.height = std::min(frame.size.height, screen.visibleFrame.size.height);
    const NSRect old = window_.frame;
    frame.origin = NSMakePoint(NSMinX(old), NSMaxY(old) - frame.size.height);
    if (!NSEqualRects(frame, old)) [window_ setFrame:frame display:YES];
}

void AppKitWindow::show() {
    fit();
    if (!wasShown_) [window_ center];
    wasShown_ = true;
    [window_ makeKeyAndOrderFront:nil];
}

}  // namespace vantrel::appkit
