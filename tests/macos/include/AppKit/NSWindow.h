// Windows and panels.
#pragma once
#import <AppKit/NSAnimationContext.h>
#import <AppKit/NSGraphics.h>
#import <AppKit/NSResponder.h>

NS_ASSUME_NONNULL_BEGIN

@protocol NSWindowDelegate;

typedef NS_OPTIONS(NSUInteger, NSWindowStyleMask) {
    NSWindowStyleMaskBorderless = 0,
    NSWindowStyleMaskTitled = 1 << 0,
    NSWindowStyleMaskClosable = 1 << 1,
    NSWindowStyleMaskMiniaturizable = 1 << 2,
    NSWindowStyleMaskResizable = 1 << 3,
    NSWindowStyleMaskUtilityWindow = 1 << 4,
    NSWindowStyleMaskDocModalWindow = 1 << 6,
    NSWindowStyleMaskNonactivatingPanel = 1 << 7,
    NSWindowStyleMaskUnifiedTitleAndToolbar = 1 << 12,
    NSWindowStyleMaskHUDWindow = 1 << 13,
    NSWindowStyleMaskFullScreen = 1 << 14,
    NSWindowStyleMaskFullSizeContentView = 1 << 15,
};
typedef NS_OPTIONS(NSUInteger, NSWindowCollectionBehavior) {
    NSWindowCollectionBehaviorDefault = 0,
    NSWindowCollectionBehaviorCanJoinAllSpaces = 1 << 0,
    NSWindowCollectionBehaviorMoveToActiveSpace = 1 << 1,
    NSWindowCollectionBehaviorManaged = 1 << 2,
    NSWindowCollectionBehaviorTransient = 1 << 3,
    NSWindowCollectionBehaviorStationary = 1 << 4,
    NSWindowCollectionBehaviorParticipatesInCycle = 1 << 5,
    NSWindowCollectionBehaviorIgnoresCycle = 1 << 6,
    NSWindowCollectionBehaviorFullScreenPrimary = 1 << 7,
    NSWindowCollectionBehaviorFullScreenAuxiliary = 1 << 8,
    NSWindowCollectionBehaviorFullScreenNone = 1 << 9,
};
typedef NS_OPTIONS(NSUInteger, NSWindowOcclusionState) { NSWindowOcclusionStateVisible = 1UL << 1 };
typedef NS_ENUM(NSUInteger, NSWindowButton) {
    NSWindowCloseButton,
    NSWindowMiniaturizeButton,
    NSWindowZoomButton,
    NSWindowToolbarButton,
    NSWindowDocumentIconButton,
};
typedef NS_ENUM(NSInteger, NSWindowTitleVisibility) { NSWindowTitleVisible = 0, NSWindowTitleHidden = 1 };
typedef NS_ENUM(NSInteger, NSWindowAnimationBehavior) {
    NSWindowAnimationBehaviorDefault = 0,
    NSWindowAnimationBehaviorNone = 2,
    NSWindowAnimationBehaviorDocumentWindow = 3,
    NSWindowAnimationBehaviorUtilityWindow = 4,
    NSWindowAnimationBehaviorAlertPanel = 5,
};
typedef NSInteger NSWindowLevel NS_TYPED_EXTENSIBLE_ENUM;
static const NSWindowLevel NSNormalWindowLevel = 0;
static const NSWindowLevel NSFloatingWindowLevel = 3;
static const NSWindowLevel NSModalPanelWindowLevel = 8;
static const NSWindowLevel NSMainMenuWindowLevel = 24;
static const NSWindowLevel NSStatusWindowLevel = 25;
static const NSWindowLevel NSPopUpMenuWindowLevel = 101;
typedef NSString* NSWindowFrameAutosaveName;
typedef NSInteger NSModalResponse NS_TYPED_EXTENSIBLE_ENUM;
static const NSModalResponse NSModalResponseOK = 1;
static const NSModalResponse NSModalResponseCancel = 0;

@interface NSWindow : NSResponder <NSAnimatablePropertyContainer,
                                   NSUserInterfaceValidations,
                                   NSUserInterfaceItemIdentification,
                                   NSAppearanceCustomization,
                                   NSAccessibilityElement,
                                   NSAccessibility>
+ (NSRect)frameRectForContentRect:(NSRect)contentRect styleMask:(NSWindowStyleMask)style;
+ (NSRect)contentRectForFrameRect:(NSRect)frameRect styleMask:(NSWindowStyleMask)style;
- (NSRect)frameRectForContentRect:(NSRect)contentRect;
- (NSRect)contentRectForFrameRect:(NSRect)frameRect;
- (instancetype)initWithContentRect:(NSRect)contentRect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backingStoreType
                              defer:(BOOL)flag NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithContentRect:(NSRect)contentRect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backingStoreType
                              defer:(BOOL)flag
                             screen:(nullable NSScreen*)screen;
// unsure: whether a window's `initWithCoder:` is unavailable
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_UNAVAILABLE;
+ (instancetype)windowWithContentViewController:(NSViewController*)contentViewController;
@property(copy) NSString* title;
@property(copy) NSString* subtitle API_AVAILABLE(macos(11.0));
@property NSWindowTitleVisibility titleVisibility;
@property BOOL titlebarAppearsTransparent;
@property(nullable, strong) __kindof NSView* contentView;
@property(nullable, strong) NSViewController* contentViewController;
@property(nullable, weak) id<NSWindowDelegate> delegate;
@property(readonly) NSInteger windowNumber;
@property NSWindowStyleMask styleMask;
- (nullable NSText*)fieldEditor:(BOOL)createFlag forObject:(nullable id)object;
- (void)endEditingFor:(nullable id)object;
- (void)setContentSize:(NSSize)size;
- (void)setFrameOrigin:(NSPoint)point;
- (void)setFrameTopLeftPoint:(NSPoint)point;
- (NSPoint)cascadeTopLeftFromPoint:(NSPoint)topLeftPoint;
@property(readonly) NSRect frame;
- (NSTimeInterval)animationResizeTime:(NSRect)newFrame;
- (void)setFrame:(NSRect)frameRect display:(BOOL)flag;
- (void)setFrame:(NSRect)frameRect display:(BOOL)displayFlag animate:(BOOL)animateFlag;
- (NSRect)constrainFrameRect:(NSRect)frameRect toScreen:(nullable NSScreen*)screen;
@property BOOL viewsNeedDisplay;
- (void)displayIfNeeded;
- (void)display;
- (void)update;
- (BOOL)makeFirstResponder:(nullable NSResponder*)responder;
@property(nullable, readonly, weak) NSResponder* firstResponder;
@property(nullable, weak) NSView* initialFirstResponder;
- (void)selectNextKeyView:(nullable id)sender;
- (void)selectPreviousKeyView:(nullable id)sender;
- (void)selectKeyViewFollowingView:(NSView*)view;
- (void)disableKeyEquivalentForDefaultButtonCell;
@property BOOL autorecalculatesKeyViewLoop;
- (void)recalculateKeyViewLoop;
- (void)close;
@property(getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
- (void)miniaturize:(nullable id)sender;
- (void)deminiaturize:(nullable id)sender;
- (void)performClose:(nullable id)sender;
- (void)performMiniaturize:(nullable id)sender;
- (void)orderFront:(nullable id)sender;
- (void)orderBack:(nullable id)sender;
- (void)orderOut:(nullable id)sender;
- (void)orderWindow:(NSWindowOrderingMode)place relativeTo:(NSInteger)otherWindow;
- (void)orderFrontRegardless;
@property(getter=isMiniaturized, readonly) BOOL miniaturized;
// unsure: whether `backgroundColor` is nullable, null_resettable or nonnull
@property(null_resettable, copy) NSColor* backgroundColor;
@property(getter=isMovable) BOOL movable;
@property(getter=isMovableByWindowBackground) BOOL movableByWindowBackground;
@property BOOL hidesOnDeactivate;
@property BOOL canHide;
- (void)center;
- (void)makeKeyAndOrderFront:(nullable id)sender;
@property(getter=isVisible, readonly) BOOL visible;
@property(getter=isKeyWindow, readonly) BOOL keyWindow;
@property(getter=isMainWindow, readonly) BOOL mainWindow;
@property(readonly) BOOL canBecomeKeyWindow;
@property(readonly) BOOL canBecomeMainWindow;
- (void)makeKeyWindow;
- (void)makeMainWindow;
- (void)becomeKeyWindow;
- (void)resignKeyWindow;
- (void)becomeMainWindow;
- (void)resignMainWindow;
@property BOOL worksWhenModal;
- (NSRect)convertRectToScreen:(NSRect)rect;
- (NSRect)convertRectFromScreen:(NSRect)rect;
- (NSPoint)convertPointToScreen:(NSPoint)point;
- (NSPoint)convertPointFromScreen:(NSPoint)point;
@property NSWindowLevel level;
@property(nullable, readonly, strong) NSScreen* screen;
@property BOOL hasShadow;
- (void)invalidateShadow;
@property CGFloat alphaValue;
@property(getter=isOpaque) BOOL opaque;
@property(readonly) CGFloat backingScaleFactor;
@property NSWindowCollectionBehavior collectionBehavior;
@property NSWindowAnimationBehavior animationBehavior;
@property(readonly) NSWindowOcclusionState occlusionState;
- (BOOL)setFrameUsingName:(NSWindowFrameAutosaveName)name;
- (void)saveFrameUsingName:(NSWindowFrameAutosaveName)name;
- (BOOL)setFrameAutosaveName:(NSWindowFrameAutosaveName)name;
@property(readonly, copy) NSWindowFrameAutosaveName frameAutosaveName;
@property NSSize minSize;
@property NSSize maxSize;
@property NSSize contentMinSize;
@property NSSize contentMaxSize;
@property(readonly) NSRect contentLayoutRect;
- (nullable NSButton*)standardWindowButton:(NSWindowButton)button;
- (void)addChildWindow:(NSWindow*)childWindow ordered:(NSWindowOrderingMode)place;
- (void)removeChildWindow:(NSWindow*)childWindow;
@property(nullable, readonly, copy) NSArray<__kindof NSWindow*>* childWindows;
@property(nullable, weak) NSWindow* parentWindow;
@property BOOL acceptsMouseMovedEvents;
@property BOOL ignoresMouseEvents;
@property(nullable, readonly, strong) NSEvent* currentEvent;
- (void)sendEvent:(NSEvent*)event;
- (void)postEvent:(NSEvent*)event atStart:(BOOL)flag;
@property(readonly) NSPoint mouseLocationOutsideOfEventStream;
- (void)layoutIfNeeded;
@property(getter=isRestorable) BOOL restorable;
@property(getter=isExcludedFromWindowsMenu) BOOL excludedFromWindowsMenu;
- (void)beginSheet:(NSWindow*)sheetWindow
    completionHandler:(nullable void (^)(NSModalResponse returnCode))handler;
- (void)endSheet:(NSWindow*)sheetWindow;
@end

@protocol NSWindowDelegate <NSObject>
@optional
- (BOOL)windowShouldClose:(NSWindow*)sender;
- (nullable id)windowWillReturnFieldEditor:(NSWindow*)sender toObject:(nullable id)client;
- (NSSize)windowWillResize:(NSWindow*)sender toSize:(NSSize)frameSize;
- (BOOL)windowShouldZoom:(NSWindow*)window toFrame:(NSRect)newFrame;
- (void)windowDidResize:(NSNotification*)notification;
- (void)windowDidExpose:(NSNotification*)notification;
- (void)windowWillMove:(NSNotification*)notification;
- (void)windowDidMove:(NSNotification*)notification;
- (void)windowDidBecomeKey:(NSNotification*)notification;
- (void)windowDidResignKey:(NSNotification*)notification;
- (void)windowDidBecomeMain:(NSNotification*)notification;
- (void)windowDidResignMain:(NSNotification*)notification;
- (void)windowWillClose:(NSNotification*)notification;
- (void)windowDidMiniaturize:(NSNotification*)notification;
- (void)windowDidDeminiaturize:(NSNotification*)notification;
- (void)windowDidUpdate:(NSNotification*)notification;
- (void)windowDidChangeScreen:(NSNotification*)notification;
- (void)windowDidChangeBackingProperties:(NSNotification*)notification;
- (void)windowDidChangeOcclusionState:(NSNotification*)notification;
- (void)windowDidEndLiveResize:(NSNotification*)notification;
@end

APPKIT_EXTERN NSNotificationName const NSWindowDidBecomeKeyNotification;
APPKIT_EXTERN NSNotificationName const NSWindowDidResignKeyNotification;
APPKIT_EXTERN NSNotificationName const NSWindowDidBecomeMainNotification;
APPKIT_EXTERN NSNotificationName const NSWindowWillCloseNotification;
APPKIT_EXTERN NSNotificationName const NSWindowDidResizeNotification;
APPKIT_EXTERN NSNotificationName const NSWindowDidMoveNotification;
APPKIT_EXTERN NSNotificationName const NSWindowDidChangeScreenNotification;
APPKIT_EXTERN NSNotificationName const NSWindowDidChangeOcclusionStateNotification;

@interface NSPanel : NSWindow
@property(getter=isFloatingPanel) BOOL floatingPanel;
@property BOOL becomesKeyOnlyIfNeeded;
@property BOOL worksWhenModal;
@end

@interface NSWindowController : NSResponder
- (instancetype)initWithWindow:(nullable NSWindow*)window NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(nullable, strong) NSWindow* window;
@property(nullable, strong) NSViewController* contentViewController;
- (void)showWindow:(nullable id)sender;
- (void)close;
@end

NS_ASSUME_NONNULL_END
