// Alerts.
#pragma once
#import <AppKit/NSButton.h>
#import <AppKit/NSWindow.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSAlertStyle) {
    NSAlertStyleWarning = 0,
    NSAlertStyleInformational = 1,
    NSAlertStyleCritical = 2,
};
static const NSModalResponse NSAlertFirstButtonReturn = 1000;
static const NSModalResponse NSAlertSecondButtonReturn = 1001;

@interface NSAlert : NSObject
+ (NSAlert*)alertWithError:(NSError*)error;
@property(copy) NSString* messageText;
@property(copy) NSString* informativeText;
@property(null_resettable, strong) NSImage* icon;
- (NSButton*)addButtonWithTitle:(NSString*)title;
@property(readonly, copy) NSArray<NSButton*>* buttons;
@property NSAlertStyle alertStyle;
@property(nullable, strong) NSView* accessoryView;
- (void)layout;
- (NSModalResponse)runModal;
- (void)beginSheetModalForWindow:(NSWindow*)sheetWindow
               completionHandler:(nullable void (^)(NSModalResponse returnCode))handler;
@property(readonly, strong) NSWindow* window;
@end

NS_ASSUME_NONNULL_END
