// Popovers.
#pragma once
#import <AppKit/NSAppearance.h>
#import <AppKit/NSResponder.h>

NS_ASSUME_NONNULL_BEGIN

@protocol NSPopoverDelegate;

typedef NS_ENUM(NSInteger, NSPopoverBehavior) {
    NSPopoverBehaviorApplicationDefined = 0,
    NSPopoverBehaviorTransient = 1,
    NSPopoverBehaviorSemitransient = 2,
};
typedef NSString* NSPopoverCloseReasonValue NS_TYPED_ENUM;
APPKIT_EXTERN NSString* const NSPopoverCloseReasonKey;
APPKIT_EXTERN NSPopoverCloseReasonValue const NSPopoverCloseReasonStandard;
APPKIT_EXTERN NSPopoverCloseReasonValue const NSPopoverCloseReasonDetachToWindow;

@interface NSPopover : NSResponder <NSAppearanceCustomization, NSAccessibilityElement, NSAccessibility>
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(nullable, weak) id<NSPopoverDelegate> delegate;
@property(nullable, strong) NSAppearance* appearance;
@property(readonly, strong) NSAppearance* effectiveAppearance;
@property NSPopoverBehavior behavior;
@property BOOL animates;
@property(nullable, strong) NSViewController* contentViewController;
@property NSSize contentSize;
@property(readonly, getter=isShown) BOOL shown;
@property(readonly, getter=isDetached) BOOL detached;
@property NSRect positioningRect;
@property BOOL hasFullSizeContent API_AVAILABLE(macos(14.0));
- (void)showRelativeToRect:(NSRect)positioningRect
                    ofView:(NSView*)positioningView
             preferredEdge:(NSRectEdge)preferredEdge;
- (void)performClose:(nullable id)sender;
- (void)close;
@end

APPKIT_EXTERN NSNotificationName const NSPopoverWillShowNotification;
APPKIT_EXTERN NSNotificationName const NSPopoverDidShowNotification;
APPKIT_EXTERN NSNotificationName const NSPopoverWillCloseNotification;
APPKIT_EXTERN NSNotificationName const NSPopoverDidCloseNotification;

@protocol NSPopoverDelegate <NSObject>
@optional
- (BOOL)popoverShouldClose:(NSPopover*)popover;
- (BOOL)popoverShouldDetach:(NSPopover*)popover;
- (void)popoverDidDetach:(NSPopover*)popover;
- (nullable NSWindow*)detachableWindowForPopover:(NSPopover*)popover;
- (void)popoverWillShow:(NSNotification*)notification;
- (void)popoverDidShow:(NSNotification*)notification;
- (void)popoverWillClose:(NSNotification*)notification;
- (void)popoverDidClose:(NSNotification*)notification;
@end

NS_ASSUME_NONNULL_END
