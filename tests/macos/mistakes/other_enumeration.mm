// type check: cannot initialize a parameter of type 'NSButtonType'
#import <AppKit/AppKit.h>

void style(NSButton* button) {
#ifdef MISTAKE
    [button setButtonType:NSBezelStyleRounded];
#else
    [button setButtonType:NSButtonTypeSwitch];
#endif
}
