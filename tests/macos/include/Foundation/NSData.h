// Bytes.
#pragma once
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSData : NSObject <NSCopying, NSMutableCopying, NSSecureCoding>
@property(readonly) NSUInteger length;
@property(readonly) const void* bytes NS_RETURNS_INNER_POINTER;
+ (instancetype)data;
+ (instancetype)dataWithBytes:(nullable const void*)bytes length:(NSUInteger)length;
+ (nullable instancetype)dataWithContentsOfFile:(NSString*)path;
- (instancetype)initWithBytes:(nullable const void*)bytes length:(NSUInteger)length;
- (BOOL)isEqualToData:(NSData*)other;
- (void)getBytes:(void*)buffer length:(NSUInteger)length;
@end

@interface NSMutableData : NSData
@property(readonly) void* mutableBytes NS_RETURNS_INNER_POINTER;
- (void)appendBytes:(const void*)bytes length:(NSUInteger)length;
@end

NS_ASSUME_NONNULL_END
