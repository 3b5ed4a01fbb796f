// Menus and their items.
#pragma once
#import <AppKit/NSCell.h>
#import <AppKit/NSEvent.h>
#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

@protocol NSMenuDelegate;

@protocol NSMenuItemValidation <NSObject>
- (BOOL)validateMenuItem:(NSMenuItem*)menuItem;
@end

@interface NSMenu : NSObject <NSCopying,
                              NSCoding,
                              NSAppearanceCustomization,
                              NSUserInterfaceItemIdentification,
                              NSAccessibilityElement,
                              NSAccessibility>
- (instancetype)initWithTitle:(NSString*)title NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(copy) NSString* title;
+ (void)popUpContextMenu:(NSMenu*)menu withEvent:(NSEvent*)event forView:(NSView*)view;
- (BOOL)popUpMenuPositioningItem:(nullable NSMenuItem*)item
                      atLocation:(NSPoint)location
                          inView:(nullable NSView*)view;
+ (void)setMenuBarVisible:(BOOL)visible;
+ (BOOL)menuBarVisible;
@property(nullable, assign) NSMenu* supermenu;
- (void)insertItem:(NSMenuItem*)newItem atIndex:(NSInteger)index;
- (void)addItem:(NSMenuItem*)newItem;
- (NSMenuItem*)insertItemWithTitle:(NSString*)string
                            action:(nullable SEL)selector
                     keyEquivalent:(NSString*)charCode
                           atIndex:(NSInteger)index;
- (NSMenuItem*)addItemWithTitle:(NSString*)string
                         action:(nullable SEL)selector
                  keyEquivalent:(NSString*)charCode;
- (void)removeItemAtIndex:(NSInteger)index;
- (void)removeItem:(NSMenuItem*)item;
- (void)setSubmenu:(nullable NSMenu*)menu forItem:(NSMenuItem*)item;
- (void)removeAllItems;
@property(copy) NSArray<NSMenuItem*>* itemArray;
@property(readonly) NSInteger numberOfItems;
- (nullable NSMenuItem*)itemAtIndex:(NSInteger)index;
- (NSInteger)indexOfItem:(NSMenuItem*)item;
- (NSInteger)indexOfItemWithTitle:(NSString*)title;
- (NSInteger)indexOfItemWithTag:(NSInteger)tag;
- (NSInteger)indexOfItemWithRepresentedObject:(nullable id)object;
- (nullable NSMenuItem*)itemWithTitle:(NSString*)title;
- (nullable NSMenuItem*)itemWithTag:(NSInteger)tag;
@property BOOL autoenablesItems;
- (void)update;
- (BOOL)performKeyEquivalent:(NSEvent*)event;
- (void)itemChanged:(NSMenuItem*)item;
- (void)performActionForItemAtIndex:(NSInteger)index;
@property(nullable, weak) id<NSMenuDelegate> delegate;
@property(readonly) CGFloat menuBarHeight;
- (void)cancelTracking;
- (void)cancelTrackingWithoutAnimation;
@property(nullable, readonly, strong) NSMenuItem* highlightedItem;
@property CGFloat minimumWidth;
@property(readonly) NSSize size;
@property(null_resettable, strong) NSFont* font;
@property BOOL allowsContextMenuPlugIns;
@property BOOL showsStateColumn;
@end

@protocol NSMenuDelegate <NSObject>
@optional
- (void)menuNeedsUpdate:(NSMenu*)menu;
- (NSInteger)numberOfItemsInMenu:(NSMenu*)menu;
- (BOOL)menu:(NSMenu*)menu
      updateItem:(NSMenuItem*)item
         atIndex:(NSInteger)index
    shouldCancel:(BOOL)shouldCancel;
- (void)menuWillOpen:(NSMenu*)menu;
- (void)menuDidClose:(NSMenu*)menu;
- (void)menu:(NSMenu*)menu willHighlightItem:(nullable NSMenuItem*)item;
- (NSRect)confinementRectForMenu:(NSMenu*)menu onScreen:(nullable NSScreen*)screen;
@end

APPKIT_EXTERN NSNotificationName const NSMenuDidBeginTrackingNotification;
APPKIT_EXTERN NSNotificationName const NSMenuDidEndTrackingNotification;

@interface NSMenuItem : NSObject <NSCopying,
                                  NSCoding,
                                  NSValidatedUserInterfaceItem,
                                  NSUserInterfaceItemIdentification,
                                  NSAccessibilityElement,
                                  NSAccessibility>
+ (NSMenuItem*)separatorItem;
// unsure: that `sectionHeaderWithTitle:` came with 14.0
+ (instancetype)sectionHeaderWithTitle:(NSString*)title API_AVAILABLE(macos(14.0));
- (instancetype)initWithTitle:(NSString*)string
                       action:(nullable SEL)selector
                keyEquivalent:(NSString*)charCode NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(nullable, assign) NSMenu* menu;
@property(readonly) BOOL hasSubmenu;
@property(nullable, strong) NSMenu* submenu;
@property(nullable, readonly, assign) NSMenuItem* parentItem;
@property(copy) NSString* title;
@property(nullable, copy) NSAttributedString* attributedTitle;
@property(readonly, getter=isSeparatorItem) BOOL separatorItem;
@property(copy) NSString* keyEquivalent;
@property NSEventModifierFlags keyEquivalentModifierMask;
@property(nullable, strong) NSImage* image;
@property NSControlStateValue state;
@property(null_resettable, strong) NSImage* onStateImage;
@property(nullable, strong) NSImage* offStateImage;
@property(null_resettable, strong) NSImage* mixedStateImage;
@property(getter=isEnabled) BOOL enabled;
@property(getter=isAlternate) BOOL alternate;
@property NSInteger indentationLevel;
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property NSInteger tag;
@property(nullable, strong) id representedObject;
@property(nullable, strong) NSView* view;
@property(getter=isHighlighted, readonly) BOOL highlighted;
@property(getter=isHidden) BOOL hidden;
@property(nullable, copy) NSString* toolTip;
@end

NS_ASSUME_NONNULL_END
