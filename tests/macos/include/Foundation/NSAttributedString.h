// Text with attributes. The attributes' names are AppKit's.
#pragma once
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSAttributedStringKey NS_TYPED_EXTENSIBLE_ENUM;

@interface NSAttributedString : NSObject <NSCopying, NSMutableCopying, NSSecureCoding>
@property(readonly, copy) NSString* string;
@property(readonly) NSUInteger length;
- (NSDictionary<NSAttributedStringKey, id>*)attributesAtIndex:(NSUInteger)location
                                               effectiveRange:(nullable NSRangePointer)range;
- (nullable id)attribute:(NSAttributedStringKey)name
                 atIndex:(NSUInteger)location
          effectiveRange:(nullable NSRangePointer)range;
- (NSAttributedString*)attributedSubstringFromRange:(NSRange)range;
- (BOOL)isEqualToAttributedString:(NSAttributedString*)other;
- (instancetype)initWithString:(NSString*)string;
- (instancetype)initWithString:(NSString*)string
                    attributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attributes;
- (instancetype)initWithAttributedString:(NSAttributedString*)string;
@end

@interface NSMutableAttributedString : NSAttributedString
@property(readonly, retain) NSMutableString* mutableString;
- (void)addAttribute:(NSAttributedStringKey)name value:(id)value range:(NSRange)range;
- (void)addAttributes:(NSDictionary<NSAttributedStringKey, id>*)attributes range:(NSRange)range;
- (void)removeAttribute:(NSAttributedStringKey)name range:(NSRange)range;
- (void)setAttributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attributes range:(NSRange)range;
- (void)appendAttributedString:(NSAttributedString*)string;
- (void)replaceCharactersInRange:(NSRange)range withString:(NSString*)string;
- (void)beginEditing;
- (void)endEditing;
@end

NS_ASSUME_NONNULL_END
