// type check: method possibly missing a [super layout] call
#import <AppKit/AppKit.h>

@interface Page : NSView
@end

@implementation Page
- (void)layout {
#ifdef MISTAKE
    self.alphaValue = 1;
#else
    [super layout];
    self.alphaValue = 1;
#endif
}
@end
