// Addresses, of files as well.
#pragma once
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSURL : NSObject <NSSecureCoding, NSCopying>
+ (nullable instancetype)URLWithString:(NSString*)string;
+ (NSURL*)fileURLWithPath:(NSString*)path;
+ (NSURL*)fileURLWithPath:(NSString*)path isDirectory:(BOOL)isDirectory;
@property(nullable, readonly, copy) NSString* absoluteString;
@property(nullable, readonly, copy) NSString* path;
@property(nullable, readonly, copy) NSString* lastPathComponent;
@property(nullable, readonly, copy) NSString* scheme;
@property(readonly, getter=isFileURL) BOOL fileURL;
@property(readonly) const char* fileSystemRepresentation NS_RETURNS_INNER_POINTER;
- (nullable NSURL*)URLByAppendingPathComponent:(NSString*)component;
@end

NS_ASSUME_NONNULL_END
