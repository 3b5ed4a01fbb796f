// Screens.
#pragma once
#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSDeviceDescriptionKey NS_TYPED_ENUM;
APPKIT_EXTERN NSDeviceDescriptionKey const NSDeviceResolution;
APPKIT_EXTERN NSDeviceDescriptionKey const NSDeviceSize;

@interface NSScreen : NSObject
@property(class, readonly, copy) NSArray<NSScreen*>* screens;
@property(class, readonly, strong, nullable) NSScreen* mainScreen;
@property(class, readonly, strong, nullable) NSScreen* deepestScreen;
@property(class, readonly) BOOL screensHaveSeparateSpaces;
@property(readonly) NSRect frame;
@property(readonly) NSRect visibleFrame;
@property(readonly, copy) NSDictionary<NSDeviceDescriptionKey, id>* deviceDescription;
@property(readonly) CGFloat backingScaleFactor;
@property(readonly, copy) NSString* localizedName;
@property(readonly) NSEdgeInsets safeAreaInsets API_AVAILABLE(macos(12.0));
@property(readonly) NSInteger maximumFramesPerSecond API_AVAILABLE(macos(12.0));
- (NSRect)convertRectToBacking:(NSRect)rect;
- (NSRect)backingAlignedRect:(NSRect)rect options:(unsigned long long)options;
@property(readonly) CGFloat maximumExtendedDynamicRangeColorComponentValue;
@end

APPKIT_EXTERN NSNotificationName const NSScreenColorSpaceDidChangeNotification;

NS_ASSUME_NONNULL_END
