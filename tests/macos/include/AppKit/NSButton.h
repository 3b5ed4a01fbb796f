// Buttons, and buttons with a menu.
#pragma once
#import <AppKit/NSControl.h>
#import <AppKit/NSMenu.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSButtonType) {
    NSButtonTypeMomentaryLight = 0,
    NSButtonTypePushOnPushOff = 1,
    NSButtonTypeToggle = 2,
    NSButtonTypeSwitch = 3,
    NSButtonTypeRadio = 4,
    NSButtonTypeMomentaryChange = 5,
    NSButtonTypeOnOff = 6,
    NSButtonTypeMomentaryPushIn = 7,
    NSButtonTypeAccelerator = 8,
    NSButtonTypeMultiLevelAccelerator = 9,
};
// unsure: that the bezel styles Push, FlexiblePush, Toolbar, AccessoryBar and so on need headers of macOS 14
typedef NS_ENUM(NSUInteger, NSBezelStyle) {
    NSBezelStyleAutomatic API_AVAILABLE(macos(14.0)) = 0,
    NSBezelStylePush = 1,
    NSBezelStyleFlexiblePush = 2,
    NSBezelStyleDisclosure = 5,
    NSBezelStyleCircular = 7,
    NSBezelStyleHelpButton = 9,
    NSBezelStyleSmallSquare = 10,
    NSBezelStyleToolbar = 11,
    NSBezelStyleAccessoryBarAction = 12,
    NSBezelStyleAccessoryBar = 13,
    NSBezelStylePushDisclosure = 14,
    NSBezelStyleBadge = 15,
    // unsure: that headers of macOS 14 still have the bezel styles' older names, not deprecated for 13.0
    NSBezelStyleRounded = NSBezelStylePush,
    NSBezelStyleRegularSquare = NSBezelStyleFlexiblePush,
    NSBezelStyleTexturedRounded = NSBezelStyleToolbar,
    NSBezelStyleRoundRect = NSBezelStyleAccessoryBarAction,
    NSBezelStyleRecessed = NSBezelStyleAccessoryBar,
    NSBezelStyleRoundedDisclosure = NSBezelStylePushDisclosure,
    NSBezelStyleInline = NSBezelStyleBadge,
};

@interface NSButtonCell : NSActionCell
@property NSBezelStyle bezelStyle;
- (void)setButtonType:(NSButtonType)type;
@property NSInteger highlightsBy;
@property NSInteger showsStateBy;
@property(null_resettable, copy) NSString* title;
@property(copy) NSAttributedString* attributedTitle;
@property NSCellImagePosition imagePosition;
@property NSImageScaling imageScaling;
@property BOOL showsBorderOnlyWhileMouseInside;
@property(nullable, copy) NSColor* backgroundColor;
- (void)mouseEntered:(NSEvent*)event;
- (void)mouseExited:(NSEvent*)event;
- (void)drawBezelWithFrame:(NSRect)frame inView:(NSView*)controlView;
- (void)drawImage:(NSImage*)image withFrame:(NSRect)frame inView:(NSView*)controlView;
- (NSRect)drawTitle:(NSAttributedString*)title withFrame:(NSRect)frame inView:(NSView*)controlView;
@end

@interface NSButton : NSControl <NSUserInterfaceValidations, NSAccessibilityButton>
+ (instancetype)buttonWithTitle:(NSString*)title
                          image:(NSImage*)image
                         target:(nullable id)target
                         action:(nullable SEL)action;
+ (instancetype)buttonWithTitle:(NSString*)title target:(nullable id)target action:(nullable SEL)action;
+ (instancetype)buttonWithImage:(NSImage*)image target:(nullable id)target action:(nullable SEL)action;
+ (instancetype)checkboxWithTitle:(NSString*)title target:(nullable id)target action:(nullable SEL)action;
+ (instancetype)radioButtonWithTitle:(NSString*)title target:(nullable id)target action:(nullable SEL)action;
- (void)setButtonType:(NSButtonType)type;
@property(copy) NSString* title;
@property(copy) NSAttributedString* attributedTitle;
@property(copy) NSString* alternateTitle;
@property BOOL hasDestructiveAction API_AVAILABLE(macos(11.0));
- (void)setPeriodicDelay:(float)delay interval:(float)interval;
@property NSBezelStyle bezelStyle;
@property(getter=isBordered) BOOL bordered;
@property(getter=isTransparent) BOOL transparent;
@property BOOL showsBorderOnlyWhileMouseInside;
@property(nullable, copy) NSColor* bezelColor;
@property(nullable, copy) NSColor* contentTintColor;
@property(nullable, strong) NSImage* image;
@property(nullable, strong) NSImage* alternateImage;
@property NSCellImagePosition imagePosition;
@property NSImageScaling imageScaling;
@property BOOL imageHugsTitle;
@property(nullable, copy) NSImageSymbolConfiguration* symbolConfiguration API_AVAILABLE(macos(11.0));
@property NSControlStateValue state;
@property BOOL allowsMixedState;
- (void)setNextState;
- (void)highlight:(BOOL)flag;
@property(copy) NSString* keyEquivalent;
@property NSEventModifierFlags keyEquivalentModifierMask;
- (BOOL)performKeyEquivalent:(NSEvent*)key;
@end

@interface NSPopUpButton : NSButton
// unsure: whether `initWithFrame:pullsDown:` is a designated initializer (matters to subclasses)
- (instancetype)initWithFrame:(NSRect)buttonFrame pullsDown:(BOOL)flag;
@property(nullable, strong) NSMenu* menu;
@property BOOL pullsDown;
@property BOOL autoenablesItems;
@property NSRectEdge preferredEdge;
- (void)addItemWithTitle:(NSString*)title;
- (void)addItemsWithTitles:(NSArray<NSString*>*)itemTitles;
- (void)insertItemWithTitle:(NSString*)title atIndex:(NSInteger)index;
- (void)removeItemWithTitle:(NSString*)title;
- (void)removeItemAtIndex:(NSInteger)index;
- (void)removeAllItems;
@property(readonly, copy) NSArray<NSMenuItem*>* itemArray;
@property(readonly) NSInteger numberOfItems;
- (NSInteger)indexOfItem:(NSMenuItem*)item;
- (NSInteger)indexOfItemWithTitle:(NSString*)title;
- (NSInteger)indexOfItemWithTag:(NSInteger)tag;
- (NSInteger)indexOfItemWithRepresentedObject:(nullable id)object;
- (nullable NSMenuItem*)itemAtIndex:(NSInteger)index;
- (nullable NSMenuItem*)itemWithTitle:(NSString*)title;
@property(nullable, readonly, strong) NSMenuItem* lastItem;
- (void)selectItem:(nullable NSMenuItem*)item;
- (void)selectItemAtIndex:(NSInteger)index;
- (void)selectItemWithTitle:(NSString*)title;
- (BOOL)selectItemWithTag:(NSInteger)tag;
- (void)setTitle:(NSString*)string;
@property(nullable, readonly, strong) NSMenuItem* selectedItem;
@property(readonly) NSInteger indexOfSelectedItem;
@property(readonly) NSInteger selectedTag;
- (void)synchronizeTitleAndSelectedItem;
- (NSString*)itemTitleAtIndex:(NSInteger)index;
@property(readonly, copy) NSArray<NSString*>* itemTitles;
@property(nullable, readonly, copy) NSString* titleOfSelectedItem;
@end

APPKIT_EXTERN NSNotificationName const NSPopUpButtonWillPopUpNotification;

typedef NS_ENUM(NSInteger, NSSegmentSwitchTracking) {
    NSSegmentSwitchTrackingSelectOne = 0,
    NSSegmentSwitchTrackingSelectAny = 1,
    NSSegmentSwitchTrackingMomentary = 2,
};
typedef NS_ENUM(NSInteger, NSSegmentDistribution) {
    NSSegmentDistributionFit = 0,
    NSSegmentDistributionFill,
    NSSegmentDistributionFillEqually,
    NSSegmentDistributionFillProportionally,
};

@interface NSSegmentedControl : NSControl
+ (instancetype)segmentedControlWithLabels:(NSArray<NSString*>*)labels
                              trackingMode:(NSSegmentSwitchTracking)trackingMode
                                    target:(nullable id)target
                                    action:(nullable SEL)action;
+ (instancetype)segmentedControlWithImages:(NSArray<NSImage*>*)images
                              trackingMode:(NSSegmentSwitchTracking)trackingMode
                                    target:(nullable id)target
                                    action:(nullable SEL)action;
@property NSInteger segmentCount;
@property NSInteger selectedSegment;
- (void)setWidth:(CGFloat)width forSegment:(NSInteger)segment;
- (void)setImage:(nullable NSImage*)image forSegment:(NSInteger)segment;
- (void)setLabel:(NSString*)label forSegment:(NSInteger)segment;
- (nullable NSString*)labelForSegment:(NSInteger)segment;
- (void)setToolTip:(nullable NSString*)toolTip forSegment:(NSInteger)segment;
- (void)setEnabled:(BOOL)enabled forSegment:(NSInteger)segment;
- (void)setSelected:(BOOL)selected forSegment:(NSInteger)segment;
- (BOOL)isSelectedForSegment:(NSInteger)segment;
@property NSSegmentSwitchTracking trackingMode;
@property NSSegmentDistribution segmentDistribution;
@end

NS_ASSUME_NONNULL_END
