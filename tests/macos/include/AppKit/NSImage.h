// Images, symbols above all.
#pragma once
#import <AppKit/NSFont.h>
#import <AppKit/NSGraphics.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSImageName NS_TYPED_EXTENSIBLE_ENUM;
APPKIT_EXTERN NSImageName const NSImageNameApplicationIcon;
APPKIT_EXTERN NSImageName const NSImageNameCaution;

typedef NS_ENUM(NSInteger, NSImageResizingMode) { NSImageResizingModeTile, NSImageResizingModeStretch };
typedef NS_ENUM(NSInteger, NSImageSymbolScale) {
    NSImageSymbolScaleSmall = 1,
    NSImageSymbolScaleMedium = 2,
    NSImageSymbolScaleLarge = 3,
} API_AVAILABLE(macos(11.0));

@interface NSImageRep : NSObject <NSCopying, NSCoding>
@property NSSize size;
@property NSInteger pixelsWide;
@property NSInteger pixelsHigh;
@end

@interface NSImage : NSObject <NSCopying, NSSecureCoding>
+ (nullable NSImage*)imageNamed:(NSImageName)name;
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description API_AVAILABLE(macos(11.0));
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                                     variableValue:(double)value
                          accessibilityDescription:(nullable NSString*)description API_AVAILABLE(macos(13.0));
- (instancetype)initWithSize:(NSSize)size NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithData:(NSData*)data;
- (nullable instancetype)initWithContentsOfFile:(NSString*)path;
- (instancetype)initWithCGImage:(CGImageRef)image size:(NSSize)size;
+ (NSImage*)imageWithSize:(NSSize)size
                  flipped:(BOOL)drawingHandlerShouldBeCalledWithFlippedContext
           drawingHandler:(BOOL (^)(NSRect dstRect))drawingHandler;
@property NSSize size;
- (BOOL)setName:(nullable NSImageName)name;
- (nullable NSImageName)name;
@property(copy) NSColor* backgroundColor;
- (void)drawAtPoint:(NSPoint)point
           fromRect:(NSRect)fromRect
          operation:(NSCompositingOperation)operation
           fraction:(CGFloat)delta;
- (void)drawInRect:(NSRect)rect
          fromRect:(NSRect)fromRect
         operation:(NSCompositingOperation)operation
          fraction:(CGFloat)delta;
- (void)drawInRect:(NSRect)rect;
- (void)addRepresentation:(NSImageRep*)representation;
@property(readonly, copy) NSArray<NSImageRep*>* representations;
@property(getter=isValid, readonly) BOOL valid;
@property(nullable, readonly, copy) NSData* TIFFRepresentation;
// unsure: whether Objective-C++ can say `image.template`; both methods are there for certain
- (BOOL)isTemplate;
- (void)setTemplate:(BOOL)isTemplate;
@property(nullable, copy) NSString* accessibilityDescription;
@property NSRect alignmentRect;
@property NSEdgeInsets capInsets;
@property NSImageResizingMode resizingMode;
- (nullable CGImageRef)CGImageForProposedRect:(nullable NSRect*)proposedDestRect
                                      context:(nullable NSGraphicsContext*)context
                                        hints:(nullable NSDictionary<NSString*, id>*)hints
    CF_RETURNS_NOT_RETAINED;
- (nullable NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration
    API_AVAILABLE(macos(11.0));
@property(readonly, copy) NSImageSymbolConfiguration* symbolConfiguration API_AVAILABLE(macos(13.0));
@end

API_AVAILABLE(macos(11.0))
@interface NSImageSymbolConfiguration : NSObject <NSCopying, NSSecureCoding>
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize
                                    weight:(NSFontWeight)weight
                                     scale:(NSImageSymbolScale)scale;
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight;
+ (instancetype)configurationWithTextStyle:(NSFontTextStyle)style scale:(NSImageSymbolScale)scale;
+ (instancetype)configurationWithTextStyle:(NSFontTextStyle)style;
+ (instancetype)configurationWithScale:(NSImageSymbolScale)scale;
+ (instancetype)configurationPreferringMonochrome API_AVAILABLE(macos(13.0));
+ (instancetype)configurationPreferringHierarchical API_AVAILABLE(macos(13.0));
+ (instancetype)configurationWithHierarchicalColor:(NSColor*)color API_AVAILABLE(macos(12.0));
+ (instancetype)configurationWithPaletteColors:(NSArray<NSColor*>*)colors API_AVAILABLE(macos(12.0));
+ (instancetype)configurationPreferringMulticolor API_AVAILABLE(macos(12.0));
- (instancetype)configurationByApplyingConfiguration:(NSImageSymbolConfiguration*)configuration
    API_AVAILABLE(macos(12.0));
@end

NS_ASSUME_NONNULL_END
