// type check: designated initializer invoked a non-designated initializer
#import <AppKit/AppKit.h>

@interface Page : NSView
- (instancetype)initWithTitle:(NSString* _Nonnull)title NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithFrame:(NSRect)frame NS_UNAVAILABLE;
- (nullable instancetype)initWithCoder:(NSCoder* _Nonnull)coder NS_UNAVAILABLE;
@end

@implementation Page
- (instancetype)initWithTitle:(NSString*)title {
#ifdef MISTAKE
    self = [super init];
#else
    self = [super initWithFrame:NSZeroRect];
#endif
    self.toolTip = title;
    return self;
}
@end
