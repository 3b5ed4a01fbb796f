// type check: 'release' is unavailable
#import <AppKit/AppKit.h>

void close(NSWindow* window) {
#ifdef MISTAKE
    [window release];
#else
    [window close];
#endif
}
