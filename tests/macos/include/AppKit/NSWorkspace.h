// The user's session: sleep, wake, and how things should look for everybody.
#pragma once
#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
@property(readonly, strong) NSNotificationCenter* notificationCenter;
- (BOOL)openURL:(NSURL*)url;
- (nullable NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)bundleIdentifier;
@property(readonly) BOOL accessibilityDisplayShouldIncreaseContrast;
@property(readonly) BOOL accessibilityDisplayShouldDifferentiateWithoutColor;
@property(readonly) BOOL accessibilityDisplayShouldReduceTransparency;
@property(readonly) BOOL accessibilityDisplayShouldReduceMotion;
@property(readonly) BOOL accessibilityDisplayShouldInvertColors;
@property(readonly, getter=isVoiceOverEnabled) BOOL voiceOverEnabled;
@end

APPKIT_EXTERN NSNotificationName const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification;
APPKIT_EXTERN NSNotificationName const NSWorkspaceWillPowerOffNotification;
APPKIT_EXTERN NSNotificationName const NSWorkspaceWillSleepNotification;
APPKIT_EXTERN NSNotificationName const NSWorkspaceDidWakeNotification;
APPKIT_EXTERN NSNotificationName const NSWorkspaceScreensDidSleepNotification;
APPKIT_EXTERN NSNotificationName const NSWorkspaceScreensDidWakeNotification;
APPKIT_EXTERN NSNotificationName const NSWorkspaceSessionDidBecomeActiveNotification;
APPKIT_EXTERN NSNotificationName const NSWorkspaceSessionDidResignActiveNotification;
APPKIT_EXTERN NSNotificationName const NSWorkspaceActiveSpaceDidChangeNotification;

typedef NS_OPTIONS(NSUInteger, NSApplicationActivationOptions) {
    NSApplicationActivateAllWindows = 1 << 0,
};

@interface NSRunningApplication : NSObject
@property(class, readonly, strong) NSRunningApplication* currentApplication;
+ (NSArray<NSRunningApplication*>*)runningApplicationsWithBundleIdentifier:(NSString*)bundleIdentifier;
@property(readonly, getter=isTerminated) BOOL terminated;
@property(readonly, getter=isActive) BOOL active;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(readonly) int processIdentifier;
- (BOOL)activateWithOptions:(NSApplicationActivationOptions)options;
- (BOOL)terminate;
@end

NS_ASSUME_NONNULL_END
