// What draws and tracks inside a control.
#pragma once
#import <AppKit/NSEvent.h>
#import <AppKit/NSFont.h>
#import <AppKit/NSImage.h>
#import <AppKit/NSText.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSCellType) { NSNullCellType = 0, NSTextCellType = 1, NSImageCellType = 2 };
typedef NSInteger NSControlStateValue NS_TYPED_EXTENSIBLE_ENUM;
static const NSControlStateValue NSControlStateValueMixed = -1;
static const NSControlStateValue NSControlStateValueOff = 0;
static const NSControlStateValue NSControlStateValueOn = 1;

typedef NS_ENUM(NSUInteger, NSCellImagePosition) {
    NSNoImage = 0,
    NSImageOnly = 1,
    NSImageLeft = 2,
    NSImageRight = 3,
    NSImageBelow = 4,
    NSImageAbove = 5,
    NSImageOverlaps = 6,
    NSImageLeading = 7,
    NSImageTrailing = 8,
};
typedef NS_ENUM(NSUInteger, NSImageScaling) {
    NSImageScaleProportionallyDown = 0,
    NSImageScaleAxesIndependently,
    NSImageScaleNone,
    NSImageScaleProportionallyUpOrDown,
};

@interface NSCell : NSObject <NSCopying,
                              NSCoding,
                              NSUserInterfaceItemIdentification,
                              NSAccessibilityElement,
                              NSAccessibility>
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (instancetype)initTextCell:(NSString*)string NS_DESIGNATED_INITIALIZER;
- (instancetype)initImageCell:(nullable NSImage*)image NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(class, readonly) BOOL prefersTrackingUntilMouseUp;
@property(nullable, weak) NSView* controlView;
@property NSCellType type;
@property NSControlStateValue state;
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property NSInteger tag;
// unsure: whether a cell's `title` is nullable
@property(nullable, copy) NSString* title;
@property(getter=isOpaque, readonly) BOOL opaque;
@property(getter=isEnabled) BOOL enabled;
- (NSInteger)sendActionOn:(NSEventMask)mask;
@property(getter=isContinuous) BOOL continuous;
@property(getter=isEditable) BOOL editable;
@property(getter=isSelectable) BOOL selectable;
@property(getter=isBordered) BOOL bordered;
@property(getter=isBezeled) BOOL bezeled;
@property(getter=isScrollable) BOOL scrollable;
@property(getter=isHighlighted) BOOL highlighted;
@property NSTextAlignment alignment;
@property BOOL wraps;
@property(nullable, strong) NSFont* font;
@property(readonly, copy) NSString* keyEquivalent;
@property(nullable, strong) NSFormatter* formatter;
@property(nullable, copy) id objectValue;
@property(copy) NSString* stringValue;
@property int intValue;
@property float floatValue;
@property double doubleValue;
@property NSInteger integerValue;
@property(nullable, strong) NSImage* image;
@property NSControlSize controlSize;
@property(nullable, strong) id representedObject;
@property BOOL usesSingleLineMode;
@property NSLineBreakMode lineBreakMode;
@property BOOL truncatesLastVisibleLine;
@property NSUserInterfaceLayoutDirection userInterfaceLayoutDirection;
@property NSFocusRingType focusRingType;
@property BOOL refusesFirstResponder;
@property(readonly) BOOL acceptsFirstResponder;
@property BOOL showsFirstResponder;
@property(copy) NSAttributedString* attributedStringValue;
@property(readonly) NSSize cellSize;
- (NSSize)cellSizeForBounds:(NSRect)rect;
- (NSRect)imageRectForBounds:(NSRect)rect;
- (NSRect)titleRectForBounds:(NSRect)rect;
- (NSRect)drawingRectForBounds:(NSRect)rect;
- (void)calcDrawInfo:(NSRect)rect;
- (NSText*)setUpFieldEditorAttributes:(NSText*)textObject;
- (void)drawInteriorWithFrame:(NSRect)cellFrame inView:(NSView*)controlView;
- (void)drawWithFrame:(NSRect)cellFrame inView:(NSView*)controlView;
- (void)highlight:(BOOL)flag withFrame:(NSRect)cellFrame inView:(NSView*)controlView;
- (void)editWithFrame:(NSRect)rect
               inView:(NSView*)controlView
               editor:(NSText*)textObject
             delegate:(nullable id)delegate
                event:(nullable NSEvent*)event;
- (void)selectWithFrame:(NSRect)rect
                 inView:(NSView*)controlView
                 editor:(NSText*)textObject
               delegate:(nullable id)delegate
                  start:(NSInteger)selStart
                 length:(NSInteger)selLength;
- (void)endEditing:(NSText*)textObject;
- (BOOL)startTrackingAt:(NSPoint)startPoint inView:(NSView*)controlView;
- (BOOL)continueTracking:(NSPoint)lastPoint at:(NSPoint)currentPoint inView:(NSView*)controlView;
- (void)stopTracking:(NSPoint)lastPoint
                  at:(NSPoint)stopPoint
              inView:(NSView*)controlView
           mouseIsUp:(BOOL)flag;
- (BOOL)trackMouse:(NSEvent*)event
            inRect:(NSRect)cellFrame
            ofView:(NSView*)controlView
      untilMouseUp:(BOOL)flag;
- (void)performClick:(nullable id)sender;
- (void)drawFocusRingMaskWithFrame:(NSRect)cellFrame inView:(NSView*)controlView;
- (NSRect)focusRingMaskBoundsForFrame:(NSRect)cellFrame inView:(NSView*)controlView;
@end

@interface NSActionCell : NSCell
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property NSInteger tag;
@end

NS_ASSUME_NONNULL_END
