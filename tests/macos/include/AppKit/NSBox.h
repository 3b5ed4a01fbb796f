// Boxes and lines.
#pragma once
#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSBoxType) { NSBoxPrimary = 0, NSBoxSeparator = 2, NSBoxCustom = 4 };
typedef NS_ENUM(NSUInteger, NSTitlePosition) { NSNoTitle = 0, NSAboveTop = 1, NSAtTop = 2 };

@interface NSBox : NSView
@property NSBoxType boxType;
@property NSTitlePosition titlePosition;
@property(copy) NSString* title;
@property NSSize contentViewMargins;
@property(nullable, strong) __kindof NSView* contentView;
@property(getter=isTransparent) BOOL transparent;
@property CGFloat borderWidth;
@property CGFloat cornerRadius;
@property(copy) NSColor* borderColor;
@property(copy) NSColor* fillColor;
- (void)sizeToFit;
@end

NS_ASSUME_NONNULL_END
