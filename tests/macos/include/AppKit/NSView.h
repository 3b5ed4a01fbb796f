// Views.
#pragma once
#import <AppKit/NSAnimationContext.h>
#import <AppKit/NSAppearance.h>
#import <AppKit/NSGraphics.h>
#import <AppKit/NSLayoutConstraint.h>
#import <AppKit/NSResponder.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, NSAutoresizingMaskOptions) {
    NSViewNotSizable = 0,
    NSViewMinXMargin = 1,
    NSViewWidthSizable = 2,
    NSViewMaxXMargin = 4,
    NSViewMinYMargin = 8,
    NSViewHeightSizable = 16,
    NSViewMaxYMargin = 32,
};
typedef NS_ENUM(NSInteger, NSViewLayerContentsRedrawPolicy) {
    NSViewLayerContentsRedrawNever = 0,
    NSViewLayerContentsRedrawOnSetNeedsDisplay = 1,
    NSViewLayerContentsRedrawDuringViewResize = 2,
    NSViewLayerContentsRedrawBeforeViewResize = 3,
    NSViewLayerContentsRedrawCrossfade = 4,
};
typedef NSInteger NSToolTipTag;
APPKIT_EXTERN const CGFloat NSViewNoIntrinsicMetric;
APPKIT_EXTERN NSNotificationName const NSViewFrameDidChangeNotification;
APPKIT_EXTERN NSNotificationName const NSViewBoundsDidChangeNotification;

@interface NSView : NSResponder <NSAnimatablePropertyContainer,
                                 NSUserInterfaceItemIdentification,
                                 NSAppearanceCustomization,
                                 NSAccessibilityElement,
                                 NSAccessibility>
- (instancetype)initWithFrame:(NSRect)frameRect NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(nullable, readonly, assign) NSWindow* window;
@property(nullable, readonly, assign) NSView* superview;
@property(copy) NSArray<__kindof NSView*>* subviews;
- (BOOL)isDescendantOf:(NSView*)view;
- (nullable NSView*)ancestorSharedWithView:(NSView*)view;
@property(getter=isHidden) BOOL hidden;
@property(getter=isHiddenOrHasHiddenAncestor, readonly) BOOL hiddenOrHasHiddenAncestor;
- (void)addSubview:(NSView*)view;
- (void)addSubview:(NSView*)view
        positioned:(NSWindowOrderingMode)place
        relativeTo:(nullable NSView*)otherView;
- (void)sortSubviewsUsingFunction:(NSComparisonResult(NS_NOESCAPE*)(__kindof NSView*, __kindof NSView*,
                                                                    void* _Nullable))compare
                          context:(nullable void*)context;
- (void)viewWillMoveToWindow:(nullable NSWindow*)newWindow;
- (void)viewDidMoveToWindow;
- (void)viewWillMoveToSuperview:(nullable NSView*)newSuperview;
- (void)viewDidMoveToSuperview;
- (void)didAddSubview:(NSView*)subview;
- (void)willRemoveSubview:(NSView*)subview;
- (void)removeFromSuperview;
- (void)replaceSubview:(NSView*)oldView with:(NSView*)newView;
- (void)removeFromSuperviewWithoutNeedingDisplay;
- (void)viewDidChangeBackingProperties;
@property BOOL postsFrameChangedNotifications;
@property BOOL postsBoundsChangedNotifications;
- (void)resizeSubviewsWithOldSize:(NSSize)oldSize;
- (void)resizeWithOldSuperviewSize:(NSSize)oldSize;
@property BOOL autoresizesSubviews;
@property NSAutoresizingMaskOptions autoresizingMask;
- (void)setFrameOrigin:(NSPoint)newOrigin;
- (void)setFrameSize:(NSSize)newSize;
@property NSRect frame;
@property CGFloat frameRotation;
- (void)setBoundsOrigin:(NSPoint)newOrigin;
- (void)setBoundsSize:(NSSize)newSize;
@property NSRect bounds;
@property(getter=isFlipped, readonly) BOOL flipped;
@property(getter=isOpaque, readonly) BOOL opaque;
- (NSPoint)convertPoint:(NSPoint)point fromView:(nullable NSView*)view;
- (NSPoint)convertPoint:(NSPoint)point toView:(nullable NSView*)view;
- (NSSize)convertSize:(NSSize)size fromView:(nullable NSView*)view;
- (NSSize)convertSize:(NSSize)size toView:(nullable NSView*)view;
- (NSRect)convertRect:(NSRect)rect fromView:(nullable NSView*)view;
- (NSRect)convertRect:(NSRect)rect toView:(nullable NSView*)view;
- (NSRect)backingAlignedRect:(NSRect)rect options:(unsigned long long)options;
- (NSRect)centerScanRect:(NSRect)rect;
@property BOOL canDrawConcurrently;
@property BOOL needsDisplay;
- (void)setNeedsDisplayInRect:(NSRect)invalidRect;
- (void)display;
- (void)displayIfNeeded;
- (void)drawRect:(NSRect)dirtyRect;
- (nullable __kindof NSView*)viewWithTag:(NSInteger)tag;
@property(readonly) NSInteger tag;
- (nullable NSView*)hitTest:(NSPoint)point;
- (BOOL)mouse:(NSPoint)point inRect:(NSRect)rect;
- (BOOL)acceptsFirstMouse:(nullable NSEvent*)event;
@property(readonly) BOOL mouseDownCanMoveWindow;
@property(readonly) BOOL needsPanelToBecomeKey;
- (void)scrollPoint:(NSPoint)point;
- (BOOL)scrollRectToVisible:(NSRect)rect;
@property(readonly) NSRect visibleRect;
@property(readonly) BOOL wantsUpdateLayer;
- (void)updateLayer;
@property BOOL wantsLayer;
@property(nullable, strong) CALayer* layer;
- (CALayer*)makeBackingLayer;
@property NSViewLayerContentsRedrawPolicy layerContentsRedrawPolicy;
@property BOOL canDrawSubviewsIntoLayer;
// unsure: that only headers of macOS 14 and later declare `clipsToBounds`, usable before
@property BOOL clipsToBounds;
@property CGFloat alphaValue;
@property(nullable, copy) NSShadow* shadow;
- (void)addTrackingArea:(NSTrackingArea*)trackingArea;
- (void)removeTrackingArea:(NSTrackingArea*)trackingArea;
@property(readonly, copy) NSArray<NSTrackingArea*>* trackingAreas;
- (void)updateTrackingAreas;
- (void)addCursorRect:(NSRect)rect cursor:(NSCursor*)cursor;
- (void)resetCursorRects;
@property(nullable, copy) NSString* toolTip;
- (NSToolTipTag)addToolTipRect:(NSRect)rect owner:(id)owner userData:(nullable void*)data;
- (void)removeAllToolTips;
- (nullable NSMenu*)menuForEvent:(NSEvent*)event;
@property(class, readonly, nullable) NSMenu* defaultMenu;
- (void)willOpenMenu:(NSMenu*)menu withEvent:(NSEvent*)event;
- (void)didCloseMenu:(NSMenu*)menu withEvent:(nullable NSEvent*)event;
@property(nullable, assign) NSView* nextKeyView;
@property(nullable, readonly, assign) NSView* previousKeyView;
@property(nullable, readonly, assign) NSView* nextValidKeyView;
@property(nullable, readonly, assign) NSView* previousValidKeyView;
@property(readonly) BOOL canBecomeKeyView;
@property NSFocusRingType focusRingType;
- (void)drawFocusRingMask;
@property(readonly) NSRect focusRingMaskBounds;
- (void)noteFocusRingMaskChanged;
- (void)setKeyboardFocusRingNeedsDisplayInRect:(NSRect)rect;
@property(readonly) BOOL allowsVibrancy;
- (void)viewDidChangeEffectiveAppearance;
- (void)viewWillStartLiveResize;
- (void)viewDidEndLiveResize;
@property(readonly) BOOL inLiveResize;
@property(readonly) NSRect preparedContentRect;
@property NSUserInterfaceLayoutDirection userInterfaceLayoutDirection;
@property(readonly) NSEdgeInsets safeAreaInsets API_AVAILABLE(macos(11.0));
- (void)addGestureRecognizer:(NSGestureRecognizer*)gestureRecognizer;
- (void)removeGestureRecognizer:(NSGestureRecognizer*)gestureRecognizer;
@property(copy) NSArray<__kindof NSGestureRecognizer*>* gestureRecognizers;
@end

@interface NSView (NSConstraintBasedLayout)
@property(readonly, strong) NSLayoutXAxisAnchor* leadingAnchor;
@property(readonly, strong) NSLayoutXAxisAnchor* trailingAnchor;
@property(readonly, strong) NSLayoutXAxisAnchor* leftAnchor;
@property(readonly, strong) NSLayoutXAxisAnchor* rightAnchor;
@property(readonly, strong) NSLayoutYAxisAnchor* topAnchor;
@property(readonly, strong) NSLayoutYAxisAnchor* bottomAnchor;
@property(readonly, strong) NSLayoutDimension* widthAnchor;
@property(readonly, strong) NSLayoutDimension* heightAnchor;
@property(readonly, strong) NSLayoutXAxisAnchor* centerXAnchor;
@property(readonly, strong) NSLayoutYAxisAnchor* centerYAnchor;
@property(readonly, strong) NSLayoutYAxisAnchor* firstBaselineAnchor;
@property(readonly, strong) NSLayoutYAxisAnchor* lastBaselineAnchor;
@property(readonly, copy) NSArray<NSLayoutConstraint*>* constraints;
- (void)addConstraint:(NSLayoutConstraint*)constraint;
- (void)addConstraints:(NSArray<NSLayoutConstraint*>*)constraints;
- (void)removeConstraint:(NSLayoutConstraint*)constraint;
- (void)removeConstraints:(NSArray<NSLayoutConstraint*>*)constraints;
- (void)layoutSubtreeIfNeeded;
- (void)layout NS_REQUIRES_SUPER;
@property BOOL needsUpdateConstraints;
@property BOOL needsLayout;
- (void)updateConstraints NS_REQUIRES_SUPER;
- (void)updateConstraintsForSubtreeIfNeeded;
@property BOOL translatesAutoresizingMaskIntoConstraints;
@property(class, readonly) BOOL requiresConstraintBasedLayout;
- (NSRect)alignmentRectForFrame:(NSRect)frame;
- (NSRect)frameForAlignmentRect:(NSRect)alignmentRect;
@property(readonly) NSEdgeInsets alignmentRectInsets;
@property(readonly) CGFloat firstBaselineOffsetFromTop;
@property(readonly) CGFloat lastBaselineOffsetFromBottom;
@property(readonly) CGFloat baselineOffsetFromBottom;
@property(readonly) NSSize intrinsicContentSize;
- (void)invalidateIntrinsicContentSize;
- (NSLayoutPriority)contentHuggingPriorityForOrientation:(NSLayoutConstraintOrientation)orientation;
- (void)setContentHuggingPriority:(NSLayoutPriority)priority
                   forOrientation:(NSLayoutConstraintOrientation)orientation;
- (NSLayoutPriority)contentCompressionResistancePriorityForOrientation:
    (NSLayoutConstraintOrientation)orientation;
- (void)setContentCompressionResistancePriority:(NSLayoutPriority)priority
                                 forOrientation:(NSLayoutConstraintOrientation)orientation;
@property(readonly) NSSize fittingSize;
@end

typedef NS_ENUM(NSInteger, NSVisualEffectMaterial) {
    NSVisualEffectMaterialTitlebar = 3,
    NSVisualEffectMaterialSelection = 4,
    NSVisualEffectMaterialMenu = 5,
    NSVisualEffectMaterialPopover = 6,
    NSVisualEffectMaterialSidebar = 7,
    NSVisualEffectMaterialHeaderView = 10,
    NSVisualEffectMaterialSheet = 11,
    NSVisualEffectMaterialWindowBackground = 12,
    NSVisualEffectMaterialHUDWindow = 13,
    NSVisualEffectMaterialFullScreenUI = 15,
    NSVisualEffectMaterialToolTip = 17,
    NSVisualEffectMaterialContentBackground = 18,
    NSVisualEffectMaterialUnderWindowBackground = 21,
    NSVisualEffectMaterialUnderPageBackground = 22,
};
typedef NS_ENUM(NSInteger, NSVisualEffectBlendingMode) {
    NSVisualEffectBlendingModeBehindWindow = 0,
    NSVisualEffectBlendingModeWithinWindow = 1,
};
typedef NS_ENUM(NSInteger, NSVisualEffectState) {
    NSVisualEffectStateFollowsWindowActiveState = 0,
    NSVisualEffectStateActive = 1,
    NSVisualEffectStateInactive = 2,
};

@interface NSVisualEffectView : NSView
@property NSVisualEffectMaterial material;
@property NSVisualEffectBlendingMode blendingMode;
@property NSVisualEffectState state;
@property(nullable, retain) NSImage* maskImage;
@property(getter=isEmphasized) BOOL emphasized;
@end

NS_ASSUME_NONNULL_END
