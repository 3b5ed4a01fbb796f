// NSString and sets of characters.
#pragma once
#import <Foundation/NSCollections.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSData, NSLocale, NSError, NSURL, NSCharacterSet;

typedef NSUInteger NSStringEncoding;
enum : NSStringEncoding {
    NSASCIIStringEncoding = 1,
    NSUTF8StringEncoding = 4,
    NSISOLatin1StringEncoding = 5,
    NSUnicodeStringEncoding = 10,
    NSUTF16StringEncoding = NSUnicodeStringEncoding,
    NSUTF16LittleEndianStringEncoding = 0x94000100,
};
typedef NS_OPTIONS(NSUInteger, NSStringCompareOptions) {
    NSCaseInsensitiveSearch = 1,
    NSLiteralSearch = 2,
    NSBackwardsSearch = 4,
    NSAnchoredSearch = 8,
    NSNumericSearch = 64,
    NSDiacriticInsensitiveSearch = 128,
};

@interface NSString : NSObject <NSCopying, NSMutableCopying, NSSecureCoding>
@property(readonly) NSUInteger length;
- (unichar)characterAtIndex:(NSUInteger)index;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
- (NSString*)substringFromIndex:(NSUInteger)from;
- (NSString*)substringToIndex:(NSUInteger)to;
- (NSString*)substringWithRange:(NSRange)range;
- (NSComparisonResult)compare:(NSString*)string;
- (NSComparisonResult)caseInsensitiveCompare:(NSString*)string;
- (NSComparisonResult)localizedStandardCompare:(NSString*)string;
- (BOOL)isEqualToString:(NSString*)other;
- (BOOL)hasPrefix:(NSString*)prefix;
- (BOOL)hasSuffix:(NSString*)suffix;
- (BOOL)containsString:(NSString*)string;
- (NSRange)rangeOfString:(NSString*)string;
- (NSRange)rangeOfComposedCharacterSequenceAtIndex:(NSUInteger)index;
- (NSString*)stringByAppendingString:(NSString*)string;
- (NSString*)stringByAppendingFormat:(NSString*)format, ... NS_FORMAT_FUNCTION(1, 2);
- (NSString*)stringByReplacingOccurrencesOfString:(NSString*)target withString:(NSString*)replacement;
- (NSString*)stringByTrimmingCharactersInSet:(NSCharacterSet*)set;
- (NSArray<NSString*>*)componentsSeparatedByString:(NSString*)separator;
- (NSString*)stringByAppendingPathComponent:(NSString*)component;
@property(readonly) double doubleValue;
@property(readonly) int intValue;
@property(readonly) NSInteger integerValue;
@property(readonly) BOOL boolValue;
@property(readonly, copy) NSString* uppercaseString;
@property(readonly, copy) NSString* lowercaseString;
@property(readonly, copy) NSString* localizedUppercaseString;
@property(readonly, copy) NSString* capitalizedString;
@property(nullable, readonly) const char* UTF8String NS_RETURNS_INNER_POINTER;
@property(readonly) const char* fileSystemRepresentation NS_RETURNS_INNER_POINTER;
- (nullable const char*)cStringUsingEncoding:(NSStringEncoding)encoding NS_RETURNS_INNER_POINTER;
- (BOOL)getCString:(char*)buffer maxLength:(NSUInteger)maximum encoding:(NSStringEncoding)encoding;
- (NSUInteger)lengthOfBytesUsingEncoding:(NSStringEncoding)encoding;
- (nullable NSData*)dataUsingEncoding:(NSStringEncoding)encoding;
+ (instancetype)string;
+ (instancetype)stringWithString:(NSString*)string;
+ (instancetype)stringWithCharacters:(const unichar*)characters length:(NSUInteger)length;
+ (nullable instancetype)stringWithUTF8String:(const char*)bytes;
+ (nullable instancetype)stringWithCString:(const char*)bytes encoding:(NSStringEncoding)encoding;
+ (instancetype)stringWithFormat:(NSString*)format, ... NS_FORMAT_FUNCTION(1, 2);
+ (instancetype)localizedStringWithFormat:(NSString*)format, ... NS_FORMAT_FUNCTION(1, 2);
- (instancetype)initWithString:(NSString*)string;
- (instancetype)initWithFormat:(NSString*)format, ... NS_FORMAT_FUNCTION(1, 2);
- (nullable instancetype)initWithUTF8String:(const char*)bytes;
- (nullable instancetype)initWithBytes:(const void*)bytes
                                length:(NSUInteger)length
                              encoding:(NSStringEncoding)encoding;
- (nullable instancetype)initWithData:(NSData*)data encoding:(NSStringEncoding)encoding;
@end

@interface NSMutableString : NSString
- (void)appendString:(NSString*)string;
- (void)appendFormat:(NSString*)format, ... NS_FORMAT_FUNCTION(1, 2);
- (void)setString:(NSString*)string;
- (void)insertString:(NSString*)string atIndex:(NSUInteger)location;
- (void)deleteCharactersInRange:(NSRange)range;
@end

@interface NSCharacterSet : NSObject <NSCopying, NSMutableCopying, NSSecureCoding>
@property(readonly, class, copy) NSCharacterSet* whitespaceCharacterSet;
@property(readonly, class, copy) NSCharacterSet* whitespaceAndNewlineCharacterSet;
@property(readonly, class, copy) NSCharacterSet* newlineCharacterSet;
@property(readonly, class, copy) NSCharacterSet* controlCharacterSet;
@property(readonly, class, copy) NSCharacterSet* decimalDigitCharacterSet;
- (BOOL)characterIsMember:(unichar)character;
@end

NS_ASSUME_NONNULL_END
