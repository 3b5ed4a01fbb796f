// Sliders and their cells.
#pragma once
#import <AppKit/NSControl.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSSliderType) { NSSliderTypeLinear = 0, NSSliderTypeCircular = 1 };
typedef NS_ENUM(NSUInteger, NSTickMarkPosition) {
    NSTickMarkPositionBelow = 0,
    NSTickMarkPositionAbove = 1,
    NSTickMarkPositionLeading = NSTickMarkPositionAbove,
    NSTickMarkPositionTrailing = NSTickMarkPositionBelow,
};

@interface NSSliderCell : NSActionCell
@property(class, readonly) BOOL prefersTrackingUntilMouseUp;
@property double minValue;
@property double maxValue;
@property double altIncrementValue;
@property NSSliderType sliderType;
@property(getter=isVertical) BOOL vertical;
@property(readonly) NSRect trackRect;
@property(readonly) CGFloat knobThickness;
- (NSRect)knobRectFlipped:(BOOL)flipped;
- (NSRect)barRectFlipped:(BOOL)flipped;
- (void)drawKnob:(NSRect)knobRect;
- (void)drawKnob;
- (void)drawBarInside:(NSRect)rect flipped:(BOOL)flipped;
@property NSInteger numberOfTickMarks;
@property BOOL allowsTickMarkValuesOnly;
- (double)closestTickMarkValueToValue:(double)value;
@end

@interface NSSlider : NSControl <NSAccessibilitySlider>
+ (instancetype)sliderWithTarget:(nullable id)target action:(nullable SEL)action;
+ (instancetype)sliderWithValue:(double)value
                       minValue:(double)minValue
                       maxValue:(double)maxValue
                         target:(nullable id)target
                         action:(nullable SEL)action;
@property NSSliderType sliderType;
@property double minValue;
@property double maxValue;
@property double altIncrementValue;
@property(readonly) CGFloat knobThickness;
- (BOOL)acceptsFirstMouse:(nullable NSEvent*)event;
@property(getter=isVertical) BOOL vertical;
@property(nullable, copy) NSColor* trackFillColor;
@property NSInteger numberOfTickMarks;
@property NSTickMarkPosition tickMarkPosition;
@property BOOL allowsTickMarkValuesOnly;
- (double)tickMarkValueAtIndex:(NSInteger)index;
- (NSRect)rectOfTickMarkAtIndex:(NSInteger)index;
- (double)closestTickMarkValueToValue:(double)value;
@end

NS_ASSUME_NONNULL_END
