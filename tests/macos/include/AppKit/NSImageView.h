// An image as a view.
#pragma once
#import <AppKit/NSControl.h>
#import <AppKit/NSImage.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSImageAlignment) {
    NSImageAlignCenter = 0,
    NSImageAlignTop,
    NSImageAlignTopLeft,
    NSImageAlignTopRight,
    NSImageAlignLeft,
    NSImageAlignBottom,
    NSImageAlignBottomLeft,
    NSImageAlignBottomRight,
    NSImageAlignRight,
};
typedef NS_ENUM(NSUInteger, NSImageFrameStyle) { NSImageFrameNone = 0 };

@interface NSImageView : NSControl
+ (instancetype)imageViewWithImage:(NSImage*)image;
@property(nullable, strong) NSImage* image;
@property(getter=isEditable) BOOL editable;
@property NSImageAlignment imageAlignment;
@property NSImageScaling imageScaling;
@property NSImageFrameStyle imageFrameStyle;
@property(nullable, copy) NSImageSymbolConfiguration* symbolConfiguration API_AVAILABLE(macos(11.0));
@property(nullable, copy) NSColor* contentTintColor;
@property BOOL animates;
@end

NS_ASSUME_NONNULL_END
