// Stand-in for <QuartzCore/QuartzCore.h>: a layer's look, and the timing of animations.
#pragma once
#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* CAMediaTimingFunctionName NS_TYPED_ENUM;
FOUNDATION_EXPORT CAMediaTimingFunctionName const kCAMediaTimingFunctionLinear;
FOUNDATION_EXPORT CAMediaTimingFunctionName const kCAMediaTimingFunctionEaseIn;
FOUNDATION_EXPORT CAMediaTimingFunctionName const kCAMediaTimingFunctionEaseOut;
FOUNDATION_EXPORT CAMediaTimingFunctionName const kCAMediaTimingFunctionEaseInEaseOut;

@interface CAMediaTimingFunction : NSObject <NSSecureCoding>
+ (instancetype)functionWithName:(CAMediaTimingFunctionName)name;
@end

@interface CALayer : NSObject <NSSecureCoding>
+ (instancetype)layer;
@property CGRect bounds;
@property CGRect frame;
@property CGPoint position;
@property CGFloat cornerRadius;
@property CGFloat borderWidth;
@property(nullable) CGColorRef borderColor;
@property(nullable) CGColorRef backgroundColor;
@property float opacity;
@property BOOL masksToBounds;
@property(getter=isHidden) BOOL hidden;
@property CGFloat contentsScale;
@property(nullable, readonly) CALayer* superlayer;
- (void)addSublayer:(CALayer*)layer;
- (void)removeFromSuperlayer;
- (void)setNeedsDisplay;
@end

@interface CATransaction : NSObject
+ (void)begin;
+ (void)commit;
+ (void)setDisableActions:(BOOL)flag;
@end

NS_ASSUME_NONNULL_END
