// Queues of work.
#pragma once
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSOperation : NSObject
- (void)start;
- (void)main;
- (void)cancel;
@property(readonly, getter=isCancelled) BOOL cancelled;
@property(readonly, getter=isFinished) BOOL finished;
@end

@interface NSOperationQueue : NSObject
- (void)addOperation:(NSOperation*)operation;
- (void)addOperationWithBlock:(void (^)(void))block;
@property NSInteger maxConcurrentOperationCount;
@property(getter=isSuspended) BOOL suspended;
- (void)cancelAllOperations;
- (void)waitUntilAllOperationsAreFinished;
@property(class, readonly, strong, nullable) NSOperationQueue* currentQueue;
@property(class, readonly, strong) NSOperationQueue* mainQueue;
@end

NS_ASSUME_NONNULL_END
