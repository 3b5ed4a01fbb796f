// Fonts, and how text is set.
#pragma once
#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

typedef CGFloat NSFontWeight NS_TYPED_EXTENSIBLE_ENUM;
APPKIT_EXTERN const NSFontWeight NSFontWeightUltraLight;
APPKIT_EXTERN const NSFontWeight NSFontWeightThin;
APPKIT_EXTERN const NSFontWeight NSFontWeightLight;
APPKIT_EXTERN const NSFontWeight NSFontWeightRegular;
APPKIT_EXTERN const NSFontWeight NSFontWeightMedium;
APPKIT_EXTERN const NSFontWeight NSFontWeightSemibold;
APPKIT_EXTERN const NSFontWeight NSFontWeightBold;
APPKIT_EXTERN const NSFontWeight NSFontWeightHeavy;
APPKIT_EXTERN const NSFontWeight NSFontWeightBlack;

typedef NSString* NSFontTextStyle NS_TYPED_ENUM;
typedef NSString* NSFontTextStyleOptionKey NS_TYPED_ENUM;
APPKIT_EXTERN NSFontTextStyle const NSFontTextStyleLargeTitle;
APPKIT_EXTERN NSFontTextStyle const NSFontTextStyleTitle1;
APPKIT_EXTERN NSFontTextStyle const NSFontTextStyleTitle2;
APPKIT_EXTERN NSFontTextStyle const NSFontTextStyleTitle3;
APPKIT_EXTERN NSFontTextStyle const NSFontTextStyleHeadline;
APPKIT_EXTERN NSFontTextStyle const NSFontTextStyleSubheadline;
APPKIT_EXTERN NSFontTextStyle const NSFontTextStyleBody;
APPKIT_EXTERN NSFontTextStyle const NSFontTextStyleCallout;
APPKIT_EXTERN NSFontTextStyle const NSFontTextStyleFootnote;
APPKIT_EXTERN NSFontTextStyle const NSFontTextStyleCaption1;
APPKIT_EXTERN NSFontTextStyle const NSFontTextStyleCaption2;

typedef uint32_t NSFontSymbolicTraits;
typedef NS_OPTIONS(uint32_t, NSFontDescriptorSymbolicTraits) {
    NSFontDescriptorTraitItalic = 1u << 0,
    NSFontDescriptorTraitBold = 1u << 1,
    NSFontDescriptorTraitMonoSpace = 1u << 10,
};

@interface NSFontDescriptor : NSObject <NSCopying, NSSecureCoding>
- (NSFontDescriptor*)fontDescriptorWithSymbolicTraits:(NSFontDescriptorSymbolicTraits)traits;
- (NSFontDescriptor*)fontDescriptorWithSize:(CGFloat)size;
@end

@interface NSFont : NSObject <NSCopying, NSSecureCoding>
+ (nullable NSFont*)fontWithName:(NSString*)name size:(CGFloat)size;
+ (nullable NSFont*)fontWithDescriptor:(NSFontDescriptor*)descriptor size:(CGFloat)size;
+ (NSFont*)systemFontOfSize:(CGFloat)size;
+ (NSFont*)boldSystemFontOfSize:(CGFloat)size;
+ (NSFont*)systemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight;
+ (NSFont*)monospacedDigitSystemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight;
+ (NSFont*)monospacedSystemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight;
+ (NSFont*)labelFontOfSize:(CGFloat)size;
+ (NSFont*)menuFontOfSize:(CGFloat)size;
+ (NSFont*)menuBarFontOfSize:(CGFloat)size;
+ (NSFont*)messageFontOfSize:(CGFloat)size;
+ (NSFont*)controlContentFontOfSize:(CGFloat)size;
+ (NSFont*)preferredFontForTextStyle:(NSFontTextStyle)style
                             options:(NSDictionary<NSFontTextStyleOptionKey, id>*)options
    API_AVAILABLE(macos(11.0));
@property(class, readonly) CGFloat systemFontSize;
@property(class, readonly) CGFloat smallSystemFontSize;
@property(class, readonly) CGFloat labelFontSize;
+ (CGFloat)systemFontSizeForControlSize:(NSControlSize)size;
- (NSFont*)fontWithSize:(CGFloat)size;
@property(readonly, copy) NSString* fontName;
@property(nullable, readonly, copy) NSString* displayName;
@property(readonly) CGFloat pointSize;
@property(readonly, copy) NSFontDescriptor* fontDescriptor;
@property(readonly) CGFloat ascender;
@property(readonly) CGFloat descender;
@property(readonly) CGFloat leading;
@property(readonly) CGFloat capHeight;
@property(readonly) CGFloat xHeight;
@property(readonly) NSRect boundingRectForFont;
@end

typedef NS_ENUM(NSUInteger, NSLineBreakMode) {
    NSLineBreakByWordWrapping = 0,
    NSLineBreakByCharWrapping,
    NSLineBreakByClipping,
    NSLineBreakByTruncatingHead,
    NSLineBreakByTruncatingTail,
    NSLineBreakByTruncatingMiddle,
};
// The values of Apple silicon.
typedef NS_ENUM(NSInteger, NSTextAlignment) {
    NSTextAlignmentLeft = 0,
    NSTextAlignmentCenter = 1,
    NSTextAlignmentRight = 2,
    NSTextAlignmentJustified = 3,
    NSTextAlignmentNatural = 4,
};
typedef NS_ENUM(NSInteger, NSWritingDirection) {
    NSWritingDirectionNatural = -1,
    NSWritingDirectionLeftToRight = 0,
    NSWritingDirectionRightToLeft = 1,
};
typedef NS_OPTIONS(NSInteger, NSUnderlineStyle) {
    NSUnderlineStyleNone = 0x00,
    NSUnderlineStyleSingle = 0x01,
    NSUnderlineStyleThick = 0x02,
    NSUnderlineStyleDouble = 0x09,
};

@interface NSParagraphStyle : NSObject <NSCopying, NSMutableCopying, NSSecureCoding>
@property(class, readonly, copy) NSParagraphStyle* defaultParagraphStyle;
@property(readonly) CGFloat lineSpacing;
@property(readonly) NSTextAlignment alignment;
@property(readonly) NSLineBreakMode lineBreakMode;
@end

@interface NSMutableParagraphStyle : NSParagraphStyle
@property CGFloat lineSpacing;
@property CGFloat paragraphSpacing;
@property NSTextAlignment alignment;
@property NSLineBreakMode lineBreakMode;
@property NSWritingDirection baseWritingDirection;
@property CGFloat minimumLineHeight;
@property CGFloat maximumLineHeight;
@end

APPKIT_EXTERN NSAttributedStringKey const NSFontAttributeName;
APPKIT_EXTERN NSAttributedStringKey const NSParagraphStyleAttributeName;
APPKIT_EXTERN NSAttributedStringKey const NSForegroundColorAttributeName;
APPKIT_EXTERN NSAttributedStringKey const NSBackgroundColorAttributeName;
APPKIT_EXTERN NSAttributedStringKey const NSKernAttributeName;
APPKIT_EXTERN NSAttributedStringKey const NSUnderlineStyleAttributeName;
APPKIT_EXTERN NSAttributedStringKey const NSStrikethroughStyleAttributeName;
APPKIT_EXTERN NSAttributedStringKey const NSBaselineOffsetAttributeName;
APPKIT_EXTERN NSAttributedStringKey const NSLinkAttributeName;
APPKIT_EXTERN NSAttributedStringKey const NSAttachmentAttributeName;

typedef NS_OPTIONS(NSInteger, NSStringDrawingOptions) {
    NSStringDrawingUsesLineFragmentOrigin = 1 << 0,
    NSStringDrawingUsesFontLeading = 1 << 1,
    NSStringDrawingUsesDeviceMetrics = 1 << 3,
    NSStringDrawingTruncatesLastVisibleLine = 1 << 5,
};

@interface NSStringDrawingContext : NSObject
@property CGFloat minimumScaleFactor;
@end

@interface NSString (NSStringDrawing)
- (NSSize)sizeWithAttributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attributes;
- (void)drawAtPoint:(NSPoint)point
     withAttributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attributes;
- (void)drawInRect:(NSRect)rect withAttributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attributes;
- (NSRect)boundingRectWithSize:(NSSize)size
                       options:(NSStringDrawingOptions)options
                    attributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attributes
                       context:(nullable NSStringDrawingContext*)context;
@end

@interface NSAttributedString (NSStringDrawing)
- (NSSize)size;
- (void)drawAtPoint:(NSPoint)point;
- (void)drawInRect:(NSRect)rect;
- (NSRect)boundingRectWithSize:(NSSize)size
                       options:(NSStringDrawingOptions)options
                       context:(nullable NSStringDrawingContext*)context;
@end

NS_ASSUME_NONNULL_END
