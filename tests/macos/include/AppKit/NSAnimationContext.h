// Animated changes.
#pragma once
#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSAnimationContext : NSObject
+ (void)runAnimationGroup:(void(NS_NOESCAPE ^)(NSAnimationContext* context))changes
        completionHandler:(nullable void (^)(void))completionHandler;
+ (void)runAnimationGroup:(void(NS_NOESCAPE ^)(NSAnimationContext* context))changes;
+ (void)beginGrouping;
+ (void)endGrouping;
@property(class, readonly, strong) NSAnimationContext* currentContext;
@property NSTimeInterval duration;
@property(nullable, strong) CAMediaTimingFunction* timingFunction;
@property(nullable, copy) void (^completionHandler)(void);
@property BOOL allowsImplicitAnimation;
@end

@protocol NSAnimatablePropertyContainer
- (instancetype)animator;
@end

NS_ASSUME_NONNULL_END
