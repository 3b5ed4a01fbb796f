// type check: implicit conversion from nullable pointer
#import <AppKit/AppKit.h>

void show(NSTextField* label, const char* _Nonnull text) {
#ifdef MISTAKE
    label.stringValue = [NSString stringWithUTF8String:text];
#else
    if (NSString* string = [NSString stringWithUTF8String:text]) label.stringValue = string;
#endif
}
