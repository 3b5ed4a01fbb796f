// Numbers as text.
#pragma once
#import <Foundation/NSLocale.h>
#import <Foundation/NSValue.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSNumberFormatterStyle) {
    NSNumberFormatterNoStyle = 0,
    NSNumberFormatterDecimalStyle = 1,
    NSNumberFormatterCurrencyStyle = 2,
    NSNumberFormatterPercentStyle = 3,
};

@interface NSFormatter : NSObject <NSCopying, NSCoding>
- (nullable NSString*)stringForObjectValue:(nullable id)object;
- (BOOL)isPartialStringValid:(NSString*)partial
            newEditingString:(NSString* _Nullable* _Nullable)newString
            errorDescription:(NSString* _Nullable* _Nullable)error;
@end

@interface NSNumberFormatter : NSFormatter
- (nullable NSString*)stringFromNumber:(NSNumber*)number;
- (nullable NSNumber*)numberFromString:(NSString*)string;
+ (NSString*)localizedStringFromNumber:(NSNumber*)number numberStyle:(NSNumberFormatterStyle)style;
@property NSNumberFormatterStyle numberStyle;
@property(null_resettable, copy) NSLocale* locale;
@property(nullable, copy) NSNumber* minimum;
@property(nullable, copy) NSNumber* maximum;
@property NSUInteger minimumFractionDigits;
@property NSUInteger maximumFractionDigits;
@property BOOL allowsFloats;
@end

NS_ASSUME_NONNULL_END
