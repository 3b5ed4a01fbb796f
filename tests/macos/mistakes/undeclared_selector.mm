// type check: undeclared selector 'presed:'
#import <AppKit/AppKit.h>

@interface Target : NSObject
- (void)pressed:(nullable id)sender;
@end

void connect(NSButton* button) {
#ifdef MISTAKE
    button.action = @selector(presed:);
#else
    button.action = @selector(pressed:);
#endif
}
