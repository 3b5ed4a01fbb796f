// type check: implicit conversion loses integer precision
#import <AppKit/AppKit.h>

int count(NSArray* array) {
#ifdef MISTAKE
    return array.count;
#else
    return static_cast<int>(array.count);
#endif
}
