// The main loop and its timers.
#pragma once
#import <Foundation/NSDate.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@class NSTimer, NSPort;
typedef NSString* NSRunLoopMode NS_TYPED_EXTENSIBLE_ENUM;
FOUNDATION_EXPORT NSRunLoopMode const NSDefaultRunLoopMode;
FOUNDATION_EXPORT NSRunLoopMode const NSRunLoopCommonModes;

@interface NSRunLoop : NSObject
@property(class, readonly, strong) NSRunLoop* currentRunLoop;
@property(class, readonly, strong) NSRunLoop* mainRunLoop;
@property(nullable, readonly, copy) NSRunLoopMode currentMode;
- (void)addTimer:(NSTimer*)timer forMode:(NSRunLoopMode)mode;
- (nullable NSDate*)limitDateForMode:(NSRunLoopMode)mode;
- (void)run;
- (void)runUntilDate:(NSDate*)limit;
- (BOOL)runMode:(NSRunLoopMode)mode beforeDate:(NSDate*)limit;
- (void)performBlock:(void (^)(void))block;
- (void)performInModes:(NSArray<NSRunLoopMode>*)modes block:(void (^)(void))block;
@end

@interface NSTimer : NSObject
+ (NSTimer*)timerWithTimeInterval:(NSTimeInterval)interval
                           target:(id)target
                         selector:(SEL)selector
                         userInfo:(nullable id)userInfo
                          repeats:(BOOL)repeats;
+ (NSTimer*)scheduledTimerWithTimeInterval:(NSTimeInterval)interval
                                    target:(id)target
                                  selector:(SEL)selector
                                  userInfo:(nullable id)userInfo
                                   repeats:(BOOL)repeats;
+ (NSTimer*)timerWithTimeInterval:(NSTimeInterval)interval
                          repeats:(BOOL)repeats
                            block:(void (^)(NSTimer* timer))block;
+ (NSTimer*)scheduledTimerWithTimeInterval:(NSTimeInterval)interval
                                   repeats:(BOOL)repeats
                                     block:(void (^)(NSTimer* timer))block;
- (instancetype)initWithFireDate:(NSDate*)date
                        interval:(NSTimeInterval)interval
                         repeats:(BOOL)repeats
                           block:(void (^)(NSTimer* timer))block;
- (instancetype)initWithFireDate:(NSDate*)date
                        interval:(NSTimeInterval)interval
                          target:(id)target
                        selector:(SEL)selector
                        userInfo:(nullable id)userInfo
                         repeats:(BOOL)repeats NS_DESIGNATED_INITIALIZER;
- (void)fire;
@property(copy) NSDate* fireDate;
@property(readonly) NSTimeInterval timeInterval;
@property NSTimeInterval tolerance;
- (void)invalidate;
@property(readonly, getter=isValid) BOOL valid;
@property(nullable, readonly, retain) id userInfo;
@end

NS_ASSUME_NONNULL_END
