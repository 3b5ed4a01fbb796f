// type check: declares the selector 'setStringVallue:'
#import <AppKit/AppKit.h>

void show(NSTextField* label) {
#ifdef MISTAKE
    [label setStringVallue:@"42"];
#else
    [label setStringValue:@"42"];
#endif
}
