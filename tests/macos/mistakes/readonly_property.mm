// type check: assignment to readonly property
#import <AppKit/AppKit.h>

void hide(NSPopover* popover) {
#ifdef MISTAKE
    popover.shown = NO;
#else
    [popover close];
#endif
}
