// type check: from incompatible type 'NSString *
#import <AppKit/AppKit.h>

void move(NSSlider* slider, NSString* value) {
#ifdef MISTAKE
    slider.doubleValue = value;
#else
    slider.doubleValue = value.doubleValue;
#endif
}
