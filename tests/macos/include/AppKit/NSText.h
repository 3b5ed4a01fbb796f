// Editors of text.
#pragma once
#import <AppKit/NSFont.h>
#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

enum {
    NSEnterCharacter = 0x0003,
    NSBackspaceCharacter = 0x0008,
    NSTabCharacter = 0x0009,
    NSNewlineCharacter = 0x000a,
    NSFormFeedCharacter = 0x000c,
    NSCarriageReturnCharacter = 0x000d,
    NSBackTabCharacter = 0x0019,
    NSDeleteCharacter = 0x007f,
};

@class NSText;

@protocol NSTextDelegate <NSObject>
@optional
- (BOOL)textShouldBeginEditing:(NSText*)textObject;
- (BOOL)textShouldEndEditing:(NSText*)textObject;
- (void)textDidBeginEditing:(NSNotification*)notification;
- (void)textDidEndEditing:(NSNotification*)notification;
- (void)textDidChange:(NSNotification*)notification;
@end

@interface NSText : NSView
- (instancetype)initWithFrame:(NSRect)frameRect NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(copy) NSString* string;
@property(nullable, weak) id<NSTextDelegate> delegate;
@property(getter=isEditable) BOOL editable;
@property(getter=isSelectable) BOOL selectable;
@property BOOL drawsBackground;
@property NSRange selectedRange;
@property(nullable, strong) NSFont* font;
@property(nullable, copy) NSColor* textColor;
@property NSTextAlignment alignment;
- (void)selectAll:(nullable id)sender;
- (void)copy:(nullable id)sender;
- (void)cut:(nullable id)sender;
- (void)paste:(nullable id)sender;
@end

@protocol NSTextViewDelegate <NSTextDelegate>
@optional
- (BOOL)textView:(NSTextView*)textView doCommandBySelector:(SEL)commandSelector;
@end

@interface NSTextView : NSText
@property(nullable, weak) id<NSTextViewDelegate> delegate;
@property(getter=isFieldEditor) BOOL fieldEditor;
@property(getter=isRichText) BOOL richText;
- (BOOL)hasMarkedText;
@end

NS_ASSUME_NONNULL_END
