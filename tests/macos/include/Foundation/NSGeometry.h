// Points, sizes, rectangles, insets and ranges.
#pragma once
#include <CoreFoundation/CFCGTypes.h>
#import <Foundation/NSObjCRuntime.h>

NS_ASSUME_NONNULL_BEGIN

typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;
typedef NSPoint* NSPointPointer;
typedef NSRect* NSRectPointer;
typedef struct NSEdgeInsets {
    CGFloat top;
    CGFloat left;
    CGFloat bottom;
    CGFloat right;
} NSEdgeInsets;
typedef struct _NSRange {
    NSUInteger location;
    NSUInteger length;
} NSRange;
typedef NSRange* NSRangePointer;

typedef NS_ENUM(NSUInteger, NSRectEdge) {
    NSRectEdgeMinX = 0,
    NSRectEdgeMinY = 1,
    NSRectEdgeMaxX = 2,
    NSRectEdgeMaxY = 3,
};

FOUNDATION_EXPORT const NSPoint NSZeroPoint;
FOUNDATION_EXPORT const NSSize NSZeroSize;
FOUNDATION_EXPORT const NSRect NSZeroRect;
FOUNDATION_EXPORT const NSEdgeInsets NSEdgeInsetsZero;

NS_INLINE NSPoint NSMakePoint(CGFloat x, CGFloat y) {
    NSPoint point;
    point.x = x;
    point.y = y;
    return point;
}
NS_INLINE NSSize NSMakeSize(CGFloat width, CGFloat height) {
    NSSize size;
    size.width = width;
    size.height = height;
    return size;
}
NS_INLINE NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    NSRect rect;
    rect.origin = NSMakePoint(x, y);
    rect.size = NSMakeSize(width, height);
    return rect;
}
NS_INLINE NSEdgeInsets NSEdgeInsetsMake(CGFloat top, CGFloat left, CGFloat bottom, CGFloat right) {
    NSEdgeInsets insets;
    insets.top = top;
    insets.left = left;
    insets.bottom = bottom;
    insets.right = right;
    return insets;
}
NS_INLINE NSRange NSMakeRange(NSUInteger location, NSUInteger length) {
    NSRange range;
    range.location = location;
    range.length = length;
    return range;
}
NS_INLINE NSUInteger NSMaxRange(NSRange range) { return range.location + range.length; }
NS_INLINE BOOL NSEqualRanges(NSRange a, NSRange b) {
    return a.location == b.location && a.length == b.length;
}
NS_INLINE CGFloat NSMaxX(NSRect rect) { return rect.origin.x + rect.size.width; }
NS_INLINE CGFloat NSMaxY(NSRect rect) { return rect.origin.y + rect.size.height; }
NS_INLINE CGFloat NSMidX(NSRect rect) { return rect.origin.x + rect.size.width / 2; }
NS_INLINE CGFloat NSMidY(NSRect rect) { return rect.origin.y + rect.size.height / 2; }
NS_INLINE CGFloat NSMinX(NSRect rect) { return rect.origin.x; }
NS_INLINE CGFloat NSMinY(NSRect rect) { return rect.origin.y; }
NS_INLINE CGFloat NSWidth(NSRect rect) { return rect.size.width; }
NS_INLINE CGFloat NSHeight(NSRect rect) { return rect.size.height; }

FOUNDATION_EXPORT BOOL NSEqualPoints(NSPoint a, NSPoint b);
FOUNDATION_EXPORT BOOL NSEqualSizes(NSSize a, NSSize b);
FOUNDATION_EXPORT BOOL NSEqualRects(NSRect a, NSRect b);
FOUNDATION_EXPORT BOOL NSEdgeInsetsEqual(NSEdgeInsets a, NSEdgeInsets b);
FOUNDATION_EXPORT BOOL NSIsEmptyRect(NSRect rect);
FOUNDATION_EXPORT NSRect NSInsetRect(NSRect rect, CGFloat dX, CGFloat dY);
FOUNDATION_EXPORT NSRect NSIntegralRect(NSRect rect);
FOUNDATION_EXPORT NSRect NSUnionRect(NSRect a, NSRect b);
FOUNDATION_EXPORT NSRect NSIntersectionRect(NSRect a, NSRect b);
FOUNDATION_EXPORT NSRect NSOffsetRect(NSRect rect, CGFloat dX, CGFloat dY);
FOUNDATION_EXPORT BOOL NSPointInRect(NSPoint point, NSRect rect);
FOUNDATION_EXPORT BOOL NSMouseInRect(NSPoint point, NSRect rect, BOOL flipped);
FOUNDATION_EXPORT BOOL NSContainsRect(NSRect a, NSRect b);
FOUNDATION_EXPORT BOOL NSIntersectsRect(NSRect a, NSRect b);
FOUNDATION_EXPORT NSString* NSStringFromPoint(NSPoint point);
FOUNDATION_EXPORT NSString* NSStringFromSize(NSSize size);
FOUNDATION_EXPORT NSString* NSStringFromRect(NSRect rect);
NS_INLINE NSRect NSRectFromCGRect(CGRect rect) { return rect; }
NS_INLINE CGRect NSRectToCGRect(NSRect rect) { return rect; }

NS_ASSUME_NONNULL_END
