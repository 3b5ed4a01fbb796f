// Items in the menu bar.
#pragma once
#import <AppKit/NSButton.h>

NS_ASSUME_NONNULL_BEGIN

static const CGFloat NSVariableStatusItemLength = -1.0;
static const CGFloat NSSquareStatusItemLength = -2.0;

typedef NSString* NSStatusItemAutosaveName;
typedef NS_OPTIONS(NSUInteger, NSStatusItemBehavior) {
    NSStatusItemBehaviorRemovalAllowed = (1 << 1),
    NSStatusItemBehaviorTerminationOnRemoval = (1 << 2),
};

@interface NSStatusBarButton : NSButton
@property BOOL appearsDisabled;
@end

@interface NSStatusItem : NSObject
@property(nullable, readonly, weak) NSStatusBar* statusBar;
@property CGFloat length;
@property(nullable, strong) NSMenu* menu;
@property(nullable, readonly, strong) NSStatusBarButton* button;
@property NSStatusItemBehavior behavior;
@property(getter=isVisible) BOOL visible;
@property(null_resettable, copy) NSStatusItemAutosaveName autosaveName;
@end

@interface NSStatusBar : NSObject
@property(class, readonly, strong) NSStatusBar* systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@property(readonly, getter=isVertical) BOOL vertical;
@property(readonly) CGFloat thickness;
@end

NS_ASSUME_NONNULL_END
