// type check: null passed to a callee that requires a non-null argument
#import <AppKit/AppKit.h>

void show(NSView* view) {
#ifdef MISTAKE
    [view addSubview:nil];
#else
    [view addSubview:[[NSView alloc] initWithFrame:NSZeroRect]];
#endif
}
