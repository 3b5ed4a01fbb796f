// Threads and locks.
#pragma once
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSThread : NSObject
@property(class, readonly, strong) NSThread* currentThread;
@property(class, readonly, strong) NSThread* mainThread;
@property(class, readonly) BOOL isMainThread;
@property(readonly) BOOL isMainThread;
@property(nullable, copy) NSString* name;
@property NSQualityOfService qualityOfService;
+ (void)detachNewThreadWithBlock:(void (^)(void))block;
+ (void)sleepForTimeInterval:(NSTimeInterval)interval;
@end

@protocol NSLocking
- (void)lock;
- (void)unlock;
@end

@interface NSLock : NSObject <NSLocking>
- (BOOL)tryLock;
@end

NS_ASSUME_NONNULL_END
