// What assistive technology is told.
#pragma once
#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSAccessibilityRole NS_TYPED_ENUM;
typedef NSString* NSAccessibilitySubrole NS_TYPED_ENUM;
typedef NSString* NSAccessibilityNotificationName NS_TYPED_ENUM;
typedef NSString* NSAccessibilityNotificationUserInfoKey NS_TYPED_ENUM;
typedef NSString* NSAccessibilityAttributeName NS_TYPED_ENUM;

APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityApplicationRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityWindowRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilitySheetRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityDrawerRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityGridRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityButtonRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityRadioButtonRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityCheckBoxRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityPopUpButtonRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityMenuButtonRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityTabGroupRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityTableRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityColumnRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityRowRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityOutlineRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityBrowserRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityScrollAreaRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityScrollBarRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityRadioGroupRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityListRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityGroupRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityValueIndicatorRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityComboBoxRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilitySliderRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityIncrementorRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityBusyIndicatorRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityProgressIndicatorRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityRelevanceIndicatorRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityToolbarRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityDisclosureTriangleRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityTextFieldRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityTextAreaRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityStaticTextRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityMenuRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityMenuItemRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityMenuBarRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityMenuBarItemRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityImageRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityPopoverRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilitySplitterRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilitySplitGroupRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityLayoutAreaRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityLayoutItemRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityLinkRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityLevelIndicatorRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityCellRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityUnknownRole;

APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilityCloseButtonSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilityMinimizeButtonSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilityZoomButtonSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilityTableRowSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilityOutlineRowSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilitySecureTextFieldSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilityStandardWindowSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilityDialogSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilitySystemDialogSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilityFloatingWindowSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilitySearchFieldSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilityToggleSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilitySwitchSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilityTextAttachmentSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilityCollectionListSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilitySectionListSubrole;
APPKIT_EXTERN NSAccessibilitySubrole const NSAccessibilityTimelineSubrole;

APPKIT_EXTERN NSAccessibilityNotificationName const NSAccessibilityAnnouncementRequestedNotification;
APPKIT_EXTERN NSAccessibilityNotificationName const NSAccessibilityValueChangedNotification;
APPKIT_EXTERN NSAccessibilityNotificationName const NSAccessibilityTitleChangedNotification;
APPKIT_EXTERN NSAccessibilityNotificationName const NSAccessibilityFocusedUIElementChangedNotification;
APPKIT_EXTERN NSAccessibilityNotificationName const NSAccessibilityLayoutChangedNotification;
APPKIT_EXTERN NSAccessibilityNotificationName const NSAccessibilityUIElementDestroyedNotification;
APPKIT_EXTERN NSAccessibilityNotificationName const NSAccessibilitySelectedChildrenChangedNotification;
APPKIT_EXTERN NSAccessibilityNotificationName const NSAccessibilityCreatedNotification;
APPKIT_EXTERN NSAccessibilityNotificationName const NSAccessibilityMovedNotification;
APPKIT_EXTERN NSAccessibilityNotificationName const NSAccessibilityResizedNotification;
APPKIT_EXTERN NSAccessibilityNotificationName const NSAccessibilityRowExpandedNotification;
APPKIT_EXTERN NSAccessibilityNotificationName const NSAccessibilityRowCollapsedNotification;
APPKIT_EXTERN NSAccessibilityNotificationName const NSAccessibilityHelpTagCreatedNotification;

APPKIT_EXTERN NSAccessibilityNotificationUserInfoKey const NSAccessibilityUIElementsKey;
APPKIT_EXTERN NSAccessibilityNotificationUserInfoKey const NSAccessibilityPriorityKey;
APPKIT_EXTERN NSAccessibilityNotificationUserInfoKey const NSAccessibilityAnnouncementKey;

typedef NS_ENUM(NSInteger, NSAccessibilityPriorityLevel) {
    NSAccessibilityPriorityLow = 10,
    NSAccessibilityPriorityMedium = 50,
    NSAccessibilityPriorityHigh = 90,
};
typedef NS_ENUM(NSInteger, NSAccessibilityOrientation) {
    NSAccessibilityOrientationUnknown = 0,
    NSAccessibilityOrientationVertical = 1,
    NSAccessibilityOrientationHorizontal = 2,
};

APPKIT_EXTERN void NSAccessibilityPostNotification(id element, NSAccessibilityNotificationName notification);
APPKIT_EXTERN void NSAccessibilityPostNotificationWithUserInfo(
    id element, NSAccessibilityNotificationName notification,
    NSDictionary<NSAccessibilityNotificationUserInfoKey, id>* _Nullable userInfo);
APPKIT_EXTERN NSString* _Nullable NSAccessibilityRoleDescription(NSAccessibilityRole role,
                                                                 NSAccessibilitySubrole _Nullable subrole);

@interface NSAccessibilityCustomAction : NSObject
- (instancetype)initWithName:(NSString*)name handler:(nullable BOOL (^)(void))handler;
- (instancetype)initWithName:(NSString*)name target:(id<NSObject>)target selector:(SEL)selector;
@property(copy) NSString* name;
@end

@protocol NSAccessibilityElement <NSObject>
@required
- (NSRect)accessibilityFrame;
- (nullable id)accessibilityParent;
@optional
- (BOOL)isAccessibilityFocused;
- (NSString*)accessibilityIdentifier;
@end

// The control protocols that a view adopts to say what it is.
@protocol NSAccessibilityGroup <NSAccessibilityElement>
@end
@protocol NSAccessibilityButton <NSAccessibilityElement>
@required
- (nullable NSString*)accessibilityLabel;
- (BOOL)accessibilityPerformPress;
@end
@protocol NSAccessibilitySlider <NSAccessibilityElement>
@required
- (nullable NSString*)accessibilityLabel;
- (nullable id)accessibilityValue;
- (BOOL)accessibilityPerformIncrement;
- (BOOL)accessibilityPerformDecrement;
@end

@protocol NSAccessibility <NSObject>
@required
@property(getter=isAccessibilityElement) BOOL accessibilityElement;
@property NSRect accessibilityFrame;
@property(getter=isAccessibilityFocused) BOOL accessibilityFocused;
@property NSPoint accessibilityActivationPoint;
@property(nullable, weak) id accessibilityTopLevelUIElement;
@property(nullable, strong) id accessibilityValue;
@property(nullable, copy) NSString* accessibilityValueDescription;
@property(nullable, copy) NSArray* accessibilityVisibleChildren;
@property(nullable, copy) NSAccessibilitySubrole accessibilitySubrole;
@property(nullable, copy) NSString* accessibilityTitle;
@property(nullable, weak) id accessibilityTitleUIElement;
@property NSAccessibilityOrientation accessibilityOrientation;
@property(getter=isAccessibilityProtectedContent) BOOL accessibilityProtectedContent;
@property(getter=isAccessibilitySelected) BOOL accessibilitySelected;
@property(nullable, copy) NSArray* accessibilitySelectedChildren;
@property(nullable, copy) NSArray* accessibilityServesAsTitleForUIElements;
@property(nullable, copy) NSAccessibilityRole accessibilityRole;
@property(nullable, copy) NSString* accessibilityRoleDescription;
@property(nullable, weak) id accessibilityParent;
@property(getter=isAccessibilityModal) BOOL accessibilityModal;
@property(nullable, strong) id accessibilityMaxValue;
@property(nullable, strong) id accessibilityMinValue;
@property(nullable, copy) NSArray* accessibilityLinkedUIElements;
@property(nullable, copy) NSString* accessibilityLabel;
@property(nullable, copy) NSArray* accessibilityLabelUIElements;
@property(nullable, copy) NSString* accessibilityIdentifier;
@property(getter=isAccessibilityHidden) BOOL accessibilityHidden;
@property(nullable, copy) NSString* accessibilityHelp;
@property(getter=isAccessibilityExpanded) BOOL accessibilityExpanded;
@property(getter=isAccessibilityEnabled) BOOL accessibilityEnabled;
@property(getter=isAccessibilityDisclosed) BOOL accessibilityDisclosed;
@property(nullable, strong) id accessibilityDisclosedByRow;
@property(nullable, copy) NSArray* accessibilityContents;
@property(nullable, copy) NSArray* accessibilityChildren;
@property(nullable, copy) NSArray* accessibilityChildrenInNavigationOrder;
@property(nullable, copy) NSString* accessibilityPlaceholderValue;
@property(nullable, weak) id accessibilityApplicationFocusedUIElement;
@property(nullable, strong) id accessibilityWindow;
@property(nullable, copy) NSArray<NSAccessibilityCustomAction*>* accessibilityCustomActions;
@property(nullable, copy) NSArray<NSString*>* accessibilityUserInputLabels;
- (BOOL)accessibilityPerformCancel;
- (BOOL)accessibilityPerformConfirm;
- (BOOL)accessibilityPerformDecrement;
- (BOOL)accessibilityPerformDelete;
- (BOOL)accessibilityPerformIncrement;
- (BOOL)accessibilityPerformPick;
- (BOOL)accessibilityPerformPress;
- (BOOL)accessibilityPerformRaise;
- (BOOL)accessibilityPerformShowAlternateUI;
- (BOOL)accessibilityPerformShowDefaultUI;
- (BOOL)accessibilityPerformShowMenu;
- (BOOL)isAccessibilitySelectorAllowed:(SEL)selector;
@end

@interface NSAccessibilityElement : NSObject <NSAccessibility>
+ (id)accessibilityElementWithRole:(NSAccessibilityRole)role
                             frame:(NSRect)frame
                             label:(nullable NSString*)label
                            parent:(nullable id)parent;
- (void)accessibilityAddChildElement:(NSAccessibilityElement*)childElement;
@property NSRect accessibilityFrameInParentSpace;
@end

APPKIT_EXTERN id _Nullable NSAccessibilityUnignoredAncestor(id element);
APPKIT_EXTERN id _Nullable NSAccessibilityUnignoredDescendant(id element);

NS_ASSUME_NONNULL_END
