// What all of AppKit's headers need.
#pragma once
#import <Foundation/Foundation.h>

#define APPKIT_EXTERN FOUNDATION_EXTERN

@class NSApplication, NSAppearance, NSBezierPath, NSBundle, NSButton, NSCell, NSClipView, NSColor,
    NSColorSpace, NSControl, NSCursor, NSEvent, NSFont, NSGestureRecognizer, NSGraphicsContext, NSImage,
    NSImageSymbolConfiguration, NSLayoutConstraint, NSLayoutDimension, NSLayoutGuide, NSLayoutXAxisAnchor,
    NSLayoutYAxisAnchor, NSMenu, NSMenuItem, NSPanel, NSPopover, NSScreen, NSScrollView, NSScroller, NSShadow,
    NSStatusBar, NSStatusBarButton, NSStatusItem, NSText, NSTextField, NSTextView, NSTrackingArea,
    NSUndoManager, NSView, NSViewController, NSWindow, NSWindowController, CALayer, CAMediaTimingFunction;

typedef struct CGContext* CGContextRef;
typedef struct CGColor* CGColorRef;
typedef struct CGImage* CGImageRef;
typedef const struct CGPath* CGPathRef;

typedef NS_ENUM(NSUInteger, NSControlSize) {
    NSControlSizeRegular = 0,
    NSControlSizeSmall = 1,
    NSControlSizeMini = 2,
    NSControlSizeLarge API_AVAILABLE(macos(11.0)) = 3,
};
typedef NS_ENUM(NSInteger, NSUserInterfaceLayoutDirection) {
    NSUserInterfaceLayoutDirectionLeftToRight = 0,
    NSUserInterfaceLayoutDirectionRightToLeft = 1,
};
typedef NS_ENUM(NSInteger, NSUserInterfaceLayoutOrientation) {
    NSUserInterfaceLayoutOrientationHorizontal = 0,
    NSUserInterfaceLayoutOrientationVertical = 1,
};
typedef NSString* NSUserInterfaceItemIdentifier NS_TYPED_EXTENSIBLE_ENUM;

@protocol NSUserInterfaceItemIdentification <NSObject>
@property(nullable, copy) NSUserInterfaceItemIdentifier identifier;
@end

@protocol NSValidatedUserInterfaceItem
@property(readonly, nullable) SEL action;
@property(readonly) NSInteger tag;
@end

@protocol NSUserInterfaceValidations
- (BOOL)validateUserInterfaceItem:(id<NSValidatedUserInterfaceItem> _Nonnull)item;
@end
