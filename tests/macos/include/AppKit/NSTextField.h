// Labels and fields of text.
#pragma once
#import <AppKit/NSControl.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSTextFieldBezelStyle) {
    NSTextFieldSquareBezel = 0,
    NSTextFieldRoundedBezel = 1,
};

@protocol NSTextFieldDelegate <NSControlTextEditingDelegate>
@optional
- (NSArray*)textField:(NSTextField*)textField
             textView:(NSTextView*)textView
           candidates:(NSArray*)candidates
     forSelectedRange:(NSRange)selectedRange;
@end

@interface NSTextFieldCell : NSActionCell
- (instancetype)initTextCell:(NSString*)string NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
- (instancetype)initImageCell:(nullable NSImage*)image NS_DESIGNATED_INITIALIZER;
@property(nullable, copy) NSColor* backgroundColor;
@property BOOL drawsBackground;
@property(nullable, copy) NSColor* textColor;
@property NSTextFieldBezelStyle bezelStyle;
@property(nullable, copy) NSString* placeholderString;
@property(nullable, copy) NSAttributedString* placeholderAttributedString;
@end

@interface NSTextField : NSControl <NSUserInterfaceValidations>
+ (instancetype)labelWithString:(NSString*)stringValue;
+ (instancetype)wrappingLabelWithString:(NSString*)stringValue;
+ (instancetype)labelWithAttributedString:(NSAttributedString*)attributedStringValue;
+ (instancetype)textFieldWithString:(NSString*)stringValue;
@property(nullable, copy) NSString* placeholderString;
@property(nullable, copy) NSAttributedString* placeholderAttributedString;
@property(nullable, copy) NSColor* backgroundColor;
@property BOOL drawsBackground;
@property(nullable, copy) NSColor* textColor;
@property(getter=isBordered) BOOL bordered;
@property(getter=isBezeled) BOOL bezeled;
@property(getter=isEditable) BOOL editable;
@property(getter=isSelectable) BOOL selectable;
- (void)selectText:(nullable id)sender;
@property(nullable, weak) id<NSTextFieldDelegate> delegate;
- (BOOL)textShouldBeginEditing:(NSText*)textObject;
- (BOOL)textShouldEndEditing:(NSText*)textObject;
- (void)textDidBeginEditing:(NSNotification*)notification;
- (void)textDidEndEditing:(NSNotification*)notification;
- (void)textDidChange:(NSNotification*)notification;
@property(readonly) BOOL acceptsFirstResponder;
@property NSTextFieldBezelStyle bezelStyle;
@property CGFloat preferredMaxLayoutWidth;
@property NSInteger maximumNumberOfLines;
@property BOOL allowsDefaultTighteningForTruncation;
@property BOOL allowsEditingTextAttributes;
@property(getter=isAutomaticTextCompletionEnabled) BOOL automaticTextCompletionEnabled;
@end

@interface NSSearchField : NSTextField
@end

NS_ASSUME_NONNULL_END
