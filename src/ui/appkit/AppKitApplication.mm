#include "ui/appkit/AppKitApplication.h"

#import <AppKit/AppKit.h>
#include <utility>

@interface VantrelApplicationDelegate : NSObject <NSApplicationDelegate>
- (instancetype)initWithLife:(vantrel::appkit::AppKitApplication::Life)life;
@end

@implementation VantrelApplicationDelegate {
    vantrel::appkit::AppKitApplication::Life _life;
}

- (instancetype)initWithLife:(vantrel::appkit::AppKitApplication::Life)life {
    self = [super init];
    if (self != nil) _life = std::move(life);
    return self;
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    (void)notification;
    _life.launched();
}

- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender hasVisibleWindows:(BOOL)hasVisibleWindows {
    (void)sender;
    (void)hasVisibleWindows;
    _life.reopened();
    return NO;
}

- (void)applicationWillTerminate:(NSNotification*)notification {
    (void)notification;
    _life.terminating();
}

- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)application {
    (void)application;
    return YES;
}

@end

namespace vantrel::appkit {
namespace {

struct Key {
    SEL action;
    NSString* key;
    NSEventModifierFlags modifiers;
};

// Nobody sees this menu, so its items have no titles; its keys work all the same.
NSMenu* menuOfKeys() {
    const NSEventModifierFlags command = NSEventModifierFlagCommand;
    const Key keys[] = {
        {NSSelectorFromString(@"undo:"), @"z", command},
        {NSSelectorFromString(@"redo:"), @"z", command | NSEventModifierFlagShift},
        {@selector(cut:), @"x", command},
        {@selector(copy:), @"c", command},
        {@selector(paste:), @"v", command},
        {@selector(selectAll:), @"a", command},
        {@selector(performClose:), @"w", command},
        {@selector(performMiniaturize:), @"m", command},
        {@selector(terminate:), @"q", command},
    };
    NSMenu* const menu = [[NSMenu alloc] initWithTitle:@""];
    for (const Key& key : keys) {
        NSMenuItem* const item = [menu addItemWithTitle:@"" action:key.action keyEquivalent:key.key];
        item.keyEquivalentModifierMask = key.modifiers;
    }
    NSMenuItem* const holder = [[NSMenuItem alloc] initWithTitle:@"" action:nil keyEquivalent:@""];
    holder.submenu = menu;
    NSMenu* const bar = [[NSMenu alloc] initWithTitle:@""];
    [bar addItem:holder];
    return bar;
}

}  // namespace

AppKitApplication::AppKitApplication() {
    NSApplication* const application = NSApplication.sharedApplication;
    [application setActivationPolicy:NSApplicationActivationPolicyAccessory];
    application.mainMenu = menuOfKeys();
}

void AppKitApplication::run(Life life) {
    NSApplication* const application = NSApplication.sharedApplication;
    // An application doesn't own its delegate, and the compiler may let go of what isn't
    // named any more.
    __attribute__((objc_precise_lifetime)) VantrelApplicationDelegate* const delegate =
        [[VantrelApplicationDelegate alloc] initWithLife:std::move(life)];
    application.delegate = delegate;
    [application run];
    application.delegate = nil;
}

}  // namespace vantrel::appkit
