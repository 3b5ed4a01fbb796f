// type check: with an lvalue of type 'CFStringRef'
#import <AppKit/AppKit.h>

NSString* converted(CFStringRef text) {
#ifdef MISTAKE
    NSString* converted = text;
#else
    NSString* converted = (__bridge NSString*)text;
#endif
    return converted;
}
