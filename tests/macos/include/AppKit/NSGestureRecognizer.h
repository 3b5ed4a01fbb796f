// Gestures.
#pragma once
#import <AppKit/NSEvent.h>
#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, NSGestureRecognizerState) {
    NSGestureRecognizerStatePossible = 0,
    NSGestureRecognizerStateBegan,
    NSGestureRecognizerStateChanged,
    NSGestureRecognizerStateEnded,
    NSGestureRecognizerStateCancelled,
    NSGestureRecognizerStateFailed,
    NSGestureRecognizerStateRecognized = NSGestureRecognizerStateEnded,
};

@class NSGestureRecognizer;

@protocol NSGestureRecognizerDelegate <NSObject>
@optional
- (BOOL)gestureRecognizer:(NSGestureRecognizer*)gestureRecognizer
    shouldAttemptToRecognizeWithEvent:(NSEvent*)event;
- (BOOL)gestureRecognizerShouldBegin:(NSGestureRecognizer*)gestureRecognizer;
@end

@interface NSGestureRecognizer : NSObject <NSCoding>
- (instancetype)initWithTarget:(nullable id)target action:(nullable SEL)action NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property(readonly) NSGestureRecognizerState state;
@property(nullable, weak) id<NSGestureRecognizerDelegate> delegate;
@property(getter=isEnabled) BOOL enabled;
@property(nullable, readonly) NSView* view;
- (NSPoint)locationInView:(nullable NSView*)view;
@end

@interface NSClickGestureRecognizer : NSGestureRecognizer
@property NSUInteger buttonMask;
@property NSInteger numberOfClicksRequired;
@end

@interface NSPanGestureRecognizer : NSGestureRecognizer
@property NSUInteger buttonMask;
- (NSPoint)translationInView:(nullable NSView*)view;
- (NSPoint)velocityInView:(nullable NSView*)view;
@end

NS_ASSUME_NONNULL_END
