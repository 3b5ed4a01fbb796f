// Colours, the system's named ones first.
#pragma once
#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSColorName NS_TYPED_EXTENSIBLE_ENUM;

typedef NS_ENUM(NSInteger, NSColorSystemEffect) {
    NSColorSystemEffectNone,
    NSColorSystemEffectPressed,
    NSColorSystemEffectDeepPressed,
    NSColorSystemEffectDisabled,
    NSColorSystemEffectRollover,
};

@interface NSColorSpace : NSObject <NSSecureCoding>
@property(class, strong, readonly) NSColorSpace* sRGBColorSpace;
@property(class, strong, readonly) NSColorSpace* deviceRGBColorSpace;
@property(class, strong, readonly) NSColorSpace* genericGamma22GrayColorSpace;
@end

@interface NSColor : NSObject <NSCopying, NSSecureCoding>
+ (NSColor*)colorWithSRGBRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
+ (NSColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
+ (NSColor*)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha;
+ (NSColor*)colorWithCalibratedWhite:(CGFloat)white alpha:(CGFloat)alpha;
+ (nullable NSColor*)colorNamed:(NSColorName)name;
+ (NSColor*)colorWithName:(nullable NSColorName)name
          dynamicProvider:(NSColor* (^)(NSAppearance* appearance))provider;
- (NSColor*)colorWithAlphaComponent:(CGFloat)alpha;
- (nullable NSColor*)colorUsingColorSpace:(NSColorSpace*)space;
- (NSColor*)colorWithSystemEffect:(NSColorSystemEffect)systemEffect;
- (nullable NSColor*)blendedColorWithFraction:(CGFloat)fraction ofColor:(NSColor*)color;
- (void)set;
- (void)setFill;
- (void)setStroke;
@property(readonly) CGFloat alphaComponent;
@property(readonly) CGFloat redComponent;
@property(readonly) CGFloat greenComponent;
@property(readonly) CGFloat blueComponent;
@property(readonly) CGColorRef CGColor;

@property(class, strong, readonly) NSColor* blackColor;
@property(class, strong, readonly) NSColor* whiteColor;
@property(class, strong, readonly) NSColor* grayColor;
@property(class, strong, readonly) NSColor* clearColor;

@property(class, strong, readonly) NSColor* labelColor;
@property(class, strong, readonly) NSColor* secondaryLabelColor;
@property(class, strong, readonly) NSColor* tertiaryLabelColor;
@property(class, strong, readonly) NSColor* quaternaryLabelColor;
@property(class, strong, readonly) NSColor* linkColor;
@property(class, strong, readonly) NSColor* placeholderTextColor;
@property(class, strong, readonly) NSColor* windowFrameTextColor;
@property(class, strong, readonly) NSColor* selectedMenuItemTextColor;
@property(class, strong, readonly) NSColor* separatorColor;
@property(class, strong, readonly) NSColor* gridColor;
@property(class, strong, readonly) NSColor* windowBackgroundColor;
@property(class, strong, readonly) NSColor* underPageBackgroundColor;
@property(class, strong, readonly) NSColor* controlBackgroundColor;
@property(class, strong, readonly) NSColor* selectedContentBackgroundColor;
@property(class, strong, readonly) NSColor* unemphasizedSelectedContentBackgroundColor;
@property(class, strong, readonly) NSColor* textColor;
@property(class, strong, readonly) NSColor* textBackgroundColor;
@property(class, strong, readonly) NSColor* selectedTextColor;
@property(class, strong, readonly) NSColor* selectedTextBackgroundColor;
@property(class, strong, readonly) NSColor* keyboardFocusIndicatorColor;
@property(class, strong, readonly) NSColor* controlColor;
@property(class, strong, readonly) NSColor* controlTextColor;
@property(class, strong, readonly) NSColor* selectedControlColor;
@property(class, strong, readonly) NSColor* selectedControlTextColor;
@property(class, strong, readonly) NSColor* disabledControlTextColor;
@property(class, strong, readonly) NSColor* alternateSelectedControlTextColor;
@property(class, strong, readonly) NSColor* controlAccentColor;
@property(class, strong, readonly) NSColor* highlightColor;
@property(class, strong, readonly) NSColor* shadowColor;

@property(class, strong, readonly) NSColor* systemRedColor;
@property(class, strong, readonly) NSColor* systemGreenColor;
@property(class, strong, readonly) NSColor* systemBlueColor;
@property(class, strong, readonly) NSColor* systemOrangeColor;
@property(class, strong, readonly) NSColor* systemYellowColor;
@property(class, strong, readonly) NSColor* systemBrownColor;
@property(class, strong, readonly) NSColor* systemPinkColor;
@property(class, strong, readonly) NSColor* systemPurpleColor;
@property(class, strong, readonly) NSColor* systemGrayColor;
@property(class, strong, readonly) NSColor* systemTealColor;
@property(class, strong, readonly) NSColor* systemIndigoColor;
@property(class, strong, readonly) NSColor* systemMintColor;
@property(class, strong, readonly) NSColor* systemCyanColor API_AVAILABLE(macos(12.0));

@property(class, strong, readonly) NSColor* systemFillColor API_AVAILABLE(macos(14.0));
@property(class, strong, readonly) NSColor* secondarySystemFillColor API_AVAILABLE(macos(14.0));
@property(class, strong, readonly) NSColor* tertiarySystemFillColor API_AVAILABLE(macos(14.0));
@property(class, strong, readonly) NSColor* quaternarySystemFillColor API_AVAILABLE(macos(14.0));
@property(class, strong, readonly) NSColor* quinarySystemFillColor API_AVAILABLE(macos(14.0));
@property(class, strong, readonly) NSColor* quinaryLabelColor API_AVAILABLE(macos(14.0));
@property(class, strong, readonly) NSColor* textInsertionPointColor API_AVAILABLE(macos(14.0));
@end

APPKIT_EXTERN NSNotificationName const NSSystemColorsDidChangeNotification;

NS_ASSUME_NONNULL_END
