// type check: incompatible pointer types
#import <AppKit/AppKit.h>

void arrange(NSView* view, NSArray<NSString*>* titles) {
#ifdef MISTAKE
    view.subviews = titles;
#else
    view.subviews = @[ [NSTextField labelWithString:titles[0]] ];
#endif
}
