// type check: is likely to lead to a retain cycle
#import <AppKit/AppKit.h>

@interface Button : NSButton
@property(nonatomic, copy, nullable) void (^handler)(void);
@end

@implementation Button
- (void)connect {
#ifdef MISTAKE
    self.handler = ^{
      [self performClick:nil];
    };
#else
    __weak Button* weakSelf = self;
    self.handler = ^{
      [weakSelf performClick:nil];
    };
#endif
}
@end
