// type check: format specifies type
#import <AppKit/AppKit.h>

NSString* percent(int value) {
#ifdef MISTAKE
    return [NSString stringWithFormat:@"%@ %%", value];
#else
    return [NSString stringWithFormat:@"%d %%", value];
#endif
}
