#include "ui/appkit/AppKitPopover.h"

#include <utility>

#include "runtime/Fatal.h"

@interface VantrelPopoverDelegate : NSObject <NSPopoverDelegate>
- (void)onClose:(std::function<void()>)action;
// Whether the click that is being handled has closed the popover with its press.
- (BOOL)takeClosingClick;
@end

@implementation VantrelPopoverDelegate {
    std::function<void()> _closed;
    // Of the press that closed it; 0 for anything else. A click has the number of its press.
    NSInteger _closingPress;
}

- (void)onClose:(std::function<void()>)action {
    _closed = std::move(action);
}

- (BOOL)takeClosingClick {
    NSEvent* const event = NSApplication.sharedApplication.currentEvent;
    const BOOL isClick = event.type == NSEventTypeLeftMouseDown || event.type == NSEventTypeLeftMouseUp;
    const BOOL isSame = _closingPress != 0 && isClick && event.eventNumber == _closingPress;
    _closingPress = 0;
    return isSame;
}

- (void)popoverWillClose:(NSNotification*)notification {
    (void)notification;
    NSEvent* const event = NSApplication.sharedApplication.currentEvent;
    _closingPress = event.type == NSEventTypeLeftMouseDown ? event.eventNumber : 0;
}

- (void)popoverDidClose:(NSNotification*)notification {
    (void)notification;
    const auto closed = _closed;
    if (closed) closed();
}

@end

namespace vantrel::appkit {

AppKitPopover::AppKitPopover(AppKitStatusItem& item)
    : item_(item), popover_([[NSPopover alloc] init]), delegate_([[VantrelPopoverDelegate alloc] init]) {
    NSViewController* const controller = [[NSViewController alloc] initWithNibName:nil bundle:nil];
    controller.view = view_.view();
    popover_.contentViewController = controller;
    popover_.behavior = NSPopoverBehaviorTransient;
    popover_.delegate = delegate_;
}

AppKitPopover::~AppKitPopover() {
    [delegate_ onClose:nullptr];
    popover_.delegate = nil;
    [popover_ close];
}

void AppKitPopover::show() {
    NSStatusBarButton* const button = item_.button();
    // A popover has to hang somewhere.
    if (button.window == nil) return;
    // The press that closes it must not open it again from the item.
    if ([delegate_ takeClosingClick]) return;
    [popover_ showRelativeToRect:button.bounds ofView:button preferredEdge:NSRectEdgeMinY];
    NSWindow* const window = view_.view().window;
    // The window is new, and has guessed what follows what.
    window.autorecalculatesKeyViewLoop = NO;
    view_.orderKeys();
    // The first Tab leads to the first control.
    window.initialFirstResponder = view_.view();
    // Its controls take keyboard input at once.
    [window makeKeyWindow];
}

void AppKitPopover::close() { [popover_ performClose:nil]; }

void AppKitPopover::setMode(ui::PopoverMode mode) {
    runtime::require(mode == ui::PopoverMode::panel, "a popover that isn't one");
    close();
}

void AppKitPopover::onClose(std::function<void()> action) { [delegate_ onClose:std::move(action)]; }

ui::Size AppKitPopover::contentSize() const {
    return {popover_.contentSize.width, popover_.contentSize.height};
}

void AppKitPopover::setContentSize(ui::Size size) {
    popover_.contentSize = NSMakeSize(size.width, size.height);
}

}  // namespace vantrel::appkit
