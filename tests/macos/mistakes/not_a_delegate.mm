// type check: incompatible pointer types sending
#import <AppKit/AppKit.h>

@interface Owner : NSObject
@end

void connect(NSMenu* menu, Owner* owner, NSObject<NSMenuDelegate>* delegate) {
    NSLog(@"%@ %@", owner, delegate);
#ifdef MISTAKE
    [menu setDelegate:owner];
#else
    [menu setDelegate:delegate];
#endif
}
