// Views with a value, a target and an action.
#pragma once
#import <AppKit/NSCell.h>
#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

@protocol NSControlTextEditingDelegate;

@interface NSControl : NSView
- (instancetype)initWithFrame:(NSRect)frameRect NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property NSInteger tag;
@property BOOL ignoresMultiClick;
@property(getter=isContinuous) BOOL continuous;
@property(getter=isEnabled) BOOL enabled;
@property BOOL refusesFirstResponder;
@property(getter=isHighlighted) BOOL highlighted;
@property NSControlSize controlSize;
@property(nullable, strong) NSFormatter* formatter;
@property(nullable, copy) id objectValue;
@property(copy) NSString* stringValue;
@property(copy) NSAttributedString* attributedStringValue;
@property int intValue;
@property NSInteger integerValue;
@property float floatValue;
@property double doubleValue;
- (NSSize)sizeThatFits:(NSSize)size;
- (void)sizeToFit;
- (NSInteger)sendActionOn:(NSEventMask)mask;
- (BOOL)sendAction:(nullable SEL)action to:(nullable id)target;
- (void)takeIntValueFrom:(nullable id)sender;
- (void)takeDoubleValueFrom:(nullable id)sender;
- (void)takeStringValueFrom:(nullable id)sender;
- (void)performClick:(nullable id)sender;
@property(nullable, strong) NSFont* font;
@property BOOL usesSingleLineMode;
@property NSLineBreakMode lineBreakMode;
@property NSTextAlignment alignment;
@property NSWritingDirection baseWritingDirection;
@property BOOL allowsExpansionToolTips;
- (nullable NSText*)currentEditor;
- (BOOL)abortEditing;
- (void)validateEditing;
@property(class, nullable) Class cellClass;
@property(nullable, strong) __kindof NSCell* cell;
@end

@protocol NSControlTextEditingDelegate <NSObject>
@optional
- (BOOL)control:(NSControl*)control textShouldBeginEditing:(NSText*)fieldEditor;
- (BOOL)control:(NSControl*)control textShouldEndEditing:(NSText*)fieldEditor;
- (BOOL)control:(NSControl*)control
    didFailToFormatString:(NSString*)string
         errorDescription:(nullable NSString*)error;
- (BOOL)control:(NSControl*)control isValidObject:(nullable id)object;
- (BOOL)control:(NSControl*)control textView:(NSTextView*)textView doCommandBySelector:(SEL)commandSelector;
- (void)controlTextDidBeginEditing:(NSNotification*)notification;
- (void)controlTextDidEndEditing:(NSNotification*)notification;
- (void)controlTextDidChange:(NSNotification*)notification;
@end

APPKIT_EXTERN NSNotificationName const NSControlTextDidBeginEditingNotification;
APPKIT_EXTERN NSNotificationName const NSControlTextDidEndEditingNotification;
APPKIT_EXTERN NSNotificationName const NSControlTextDidChangeNotification;

// Progress, switches and steppers.

typedef NS_ENUM(NSUInteger, NSProgressIndicatorStyle) {
    NSProgressIndicatorStyleBar = 0,
    NSProgressIndicatorStyleSpinning = 1,
};

@interface NSProgressIndicator : NSView
@property(getter=isIndeterminate) BOOL indeterminate;
@property NSControlSize controlSize;
@property double doubleValue;
@property double minValue;
@property double maxValue;
- (void)incrementBy:(double)delta;
@property BOOL usesThreadedAnimation;
- (void)startAnimation:(nullable id)sender;
- (void)stopAnimation:(nullable id)sender;
@property NSProgressIndicatorStyle style;
- (void)sizeToFit;
@property(getter=isDisplayedWhenStopped) BOOL displayedWhenStopped;
@end

@interface NSSwitch : NSControl
@property NSControlStateValue state;
@end

@interface NSStepper : NSControl
@property double minValue;
@property double maxValue;
@property double increment;
@property BOOL valueWraps;
@property BOOL autorepeat;
@end

NS_ASSUME_NONNULL_END
