// type check: 'activate' is only available on macOS 14.0 or newer
#import <AppKit/AppKit.h>

void activate() {
#ifdef MISTAKE
    [NSApp activate];
#else
    if (@available(macOS 14.0, *)) [NSApp activate];
#endif
}
