// Views one after the other.
#pragma once
#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, NSStackViewGravity) {
    NSStackViewGravityTop = 1,
    NSStackViewGravityLeading = 1,
    NSStackViewGravityCenter = 2,
    NSStackViewGravityBottom = 3,
    NSStackViewGravityTrailing = 3,
};
typedef NS_ENUM(NSInteger, NSStackViewDistribution) {
    NSStackViewDistributionGravityAreas = -1,
    NSStackViewDistributionFill = 0,
    NSStackViewDistributionFillEqually,
    NSStackViewDistributionFillProportionally,
    NSStackViewDistributionEqualSpacing,
    NSStackViewDistributionEqualCentering,
};

@interface NSStackView : NSView
+ (instancetype)stackViewWithViews:(NSArray<NSView*>*)views;
@property NSUserInterfaceLayoutOrientation orientation;
@property NSLayoutAttribute alignment;
@property NSEdgeInsets edgeInsets;
@property NSStackViewDistribution distribution;
@property CGFloat spacing;
- (void)setCustomSpacing:(CGFloat)spacing afterView:(NSView*)view;
@property BOOL detachesHiddenViews;
@property(readonly, copy) NSArray<__kindof NSView*>* arrangedSubviews;
- (void)addArrangedSubview:(NSView*)view;
- (void)insertArrangedSubview:(NSView*)view atIndex:(NSInteger)insertionIndex;
- (void)removeArrangedSubview:(NSView*)view;
- (void)addView:(NSView*)view inGravity:(NSStackViewGravity)gravity;
- (void)setViews:(NSArray<NSView*>*)views inGravity:(NSStackViewGravity)gravity;
- (void)setHuggingPriority:(NSLayoutPriority)priority
            forOrientation:(NSLayoutConstraintOrientation)orientation;
@end

NS_ASSUME_NONNULL_END
