// The application object.
#pragma once
#import <AppKit/NSAppearance.h>
#import <AppKit/NSEvent.h>
#import <AppKit/NSResponder.h>
#import <AppKit/NSWindow.h>
#import <AppKit/NSWorkspace.h>

NS_ASSUME_NONNULL_BEGIN

@protocol NSApplicationDelegate;

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
    NSApplicationActivationPolicyProhibited,
};
typedef NS_ENUM(NSUInteger, NSApplicationTerminateReply) {
    NSTerminateCancel = 0,
    NSTerminateNow = 1,
    NSTerminateLater = 2,
};
typedef NS_ENUM(NSUInteger, NSRequestUserAttentionType) {
    NSCriticalRequest = 0,
    NSInformationalRequest = 10
};

APPKIT_EXTERN __kindof NSApplication* _Null_unspecified NSApp;
APPKIT_EXTERN NSRunLoopMode const NSModalPanelRunLoopMode;
APPKIT_EXTERN NSRunLoopMode const NSEventTrackingRunLoopMode;

@interface NSApplication : NSResponder <NSUserInterfaceValidations,
                                        NSMenuItemValidation,
                                        NSAppearanceCustomization,
                                        NSAccessibilityElement,
                                        NSAccessibility>
@property(class, readonly, strong) __kindof NSApplication* sharedApplication;
@property(nullable, weak) id<NSApplicationDelegate> delegate;
- (void)hide:(nullable id)sender;
- (void)unhide:(nullable id)sender;
- (nullable NSWindow*)windowWithWindowNumber:(NSInteger)windowNumber;
@property(nullable, readonly, weak) NSWindow* mainWindow;
@property(nullable, readonly, weak) NSWindow* keyWindow;
@property(getter=isActive, readonly) BOOL active;
@property(getter=isHidden, readonly) BOOL hidden;
@property(getter=isRunning, readonly) BOOL running;
- (void)deactivate;
// unsure: whether `activateIgnoringOtherApps:` is deprecated from 14.0 on, or only will be
- (void)activateIgnoringOtherApps:(BOOL)ignoreOtherApps API_DEPRECATED("Use activate.", macos(10.0, 14.0));
- (void)activate API_AVAILABLE(macos(14.0));
- (void)yieldActivationToApplication:(NSRunningApplication*)application API_AVAILABLE(macos(14.0));
- (void)finishLaunching;
- (void)run;
- (NSModalResponse)runModalForWindow:(NSWindow*)window;
- (void)stop:(nullable id)sender;
- (void)stopModal;
- (void)abortModal;
- (void)sendEvent:(NSEvent*)event;
- (void)preventWindowOrdering;
@property(readonly, copy) NSArray<__kindof NSWindow*>* windows;
@property(nullable, strong) NSMenu* mainMenu;
@property(nullable, strong) NSMenu* helpMenu;
@property(nullable, strong) NSMenu* windowsMenu;
@property(null_resettable, strong) NSImage* applicationIconImage;
- (NSApplicationActivationPolicy)activationPolicy;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
- (BOOL)tryToPerform:(SEL)action with:(nullable id)object;
- (void)replyToApplicationShouldTerminate:(BOOL)shouldTerminate;
- (void)terminate:(nullable id)sender;
- (NSInteger)requestUserAttention:(NSRequestUserAttentionType)requestType;
@property(nullable, readonly, strong) NSEvent* currentEvent;
- (nullable NSEvent*)nextEventMatchingMask:(NSEventMask)mask
                                 untilDate:(nullable NSDate*)expiration
                                    inMode:(NSRunLoopMode)mode
                                   dequeue:(BOOL)dequeue;
- (void)postEvent:(NSEvent*)event atStart:(BOOL)atStart;
- (BOOL)sendAction:(SEL)action to:(nullable id)target from:(nullable id)sender;
- (nullable id)targetForAction:(SEL)action;
- (nullable id)targetForAction:(SEL)action to:(nullable id)target from:(nullable id)sender;
- (void)orderFrontStandardAboutPanel:(nullable id)sender;
- (void)orderFrontCharacterPalette:(nullable id)sender;
- (void)disableRelaunchOnLogin;
- (void)enableRelaunchOnLogin;
@property(readonly) NSUserInterfaceLayoutDirection userInterfaceLayoutDirection;
@property(nullable, strong) NSAppearance* appearance;
@property(readonly, strong) NSAppearance* effectiveAppearance;
@property(getter=isFullKeyboardAccessEnabled, readonly) BOOL fullKeyboardAccessEnabled;
@end

@protocol NSApplicationDelegate <NSObject>
@optional
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)sender;
- (void)application:(NSApplication*)application openURLs:(NSArray<NSURL*>*)urls;
- (BOOL)application:(NSApplication*)sender openFile:(NSString*)filename;
- (BOOL)applicationShouldOpenUntitledFile:(NSApplication*)sender;
- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)sender;
- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender hasVisibleWindows:(BOOL)hasVisibleWindows;
- (nullable NSMenu*)applicationDockMenu:(NSApplication*)sender;
- (NSError*)application:(NSApplication*)application willPresentError:(NSError*)error;
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)app API_AVAILABLE(macos(12.0));
- (void)applicationWillFinishLaunching:(NSNotification*)notification;
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (void)applicationWillHide:(NSNotification*)notification;
- (void)applicationDidHide:(NSNotification*)notification;
- (void)applicationWillUnhide:(NSNotification*)notification;
- (void)applicationDidUnhide:(NSNotification*)notification;
- (void)applicationWillBecomeActive:(NSNotification*)notification;
- (void)applicationDidBecomeActive:(NSNotification*)notification;
- (void)applicationWillResignActive:(NSNotification*)notification;
- (void)applicationDidResignActive:(NSNotification*)notification;
- (void)applicationWillUpdate:(NSNotification*)notification;
- (void)applicationDidUpdate:(NSNotification*)notification;
- (void)applicationWillTerminate:(NSNotification*)notification;
- (void)applicationDidChangeScreenParameters:(NSNotification*)notification;
- (void)applicationDidChangeOcclusionState:(NSNotification*)notification;
@end

APPKIT_EXTERN NSNotificationName const NSApplicationDidBecomeActiveNotification;
APPKIT_EXTERN NSNotificationName const NSApplicationDidResignActiveNotification;
APPKIT_EXTERN NSNotificationName const NSApplicationDidFinishLaunchingNotification;
APPKIT_EXTERN NSNotificationName const NSApplicationWillTerminateNotification;
APPKIT_EXTERN NSNotificationName const NSApplicationDidChangeScreenParametersNotification;

APPKIT_EXTERN int NSApplicationMain(int argc, const char* _Nonnull argv[_Nonnull]);
APPKIT_EXTERN BOOL NSApplicationLoad(void);

NS_ASSUME_NONNULL_END
