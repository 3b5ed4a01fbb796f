// type check: 'validateMenuItem:' in protocol 'NSMenuItemValidation' not implemented
#import <AppKit/AppKit.h>

@interface Target : NSObject <NSMenuItemValidation>
@end

@implementation Target
#ifdef MISTAKE
#else
- (BOOL)validateMenuItem:(NSMenuItem*)item {
    return item.enabled;
}
#endif
@end
