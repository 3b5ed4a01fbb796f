// What is larger than its place.
#pragma once
#import <AppKit/NSControl.h>
#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSUInteger, NSBorderType) {
    NSNoBorder = 0,
    NSLineBorder = 1,
    NSBezelBorder = 2,
    NSGrooveBorder = 3
};
typedef NS_ENUM(NSInteger, NSScrollElasticity) {
    NSScrollElasticityAutomatic = 0,
    NSScrollElasticityNone = 1,
    NSScrollElasticityAllowed = 2,
};
typedef NS_ENUM(NSInteger, NSScrollerStyle) { NSScrollerStyleLegacy = 0, NSScrollerStyleOverlay = 1 };

@interface NSScroller : NSControl
@property(class, readonly) NSScrollerStyle preferredScrollerStyle;
+ (CGFloat)scrollerWidthForControlSize:(NSControlSize)controlSize
                         scrollerStyle:(NSScrollerStyle)scrollerStyle;
@property NSScrollerStyle scrollerStyle;
@end

@interface NSClipView : NSView
@property(copy) NSColor* backgroundColor;
@property BOOL drawsBackground;
@property(nullable, strong) __kindof NSView* documentView;
@property(readonly) NSRect documentRect;
@property(readonly) NSRect documentVisibleRect;
- (void)viewFrameChanged:(NSNotification*)notification;
- (void)viewBoundsChanged:(NSNotification*)notification;
- (BOOL)autoscroll:(NSEvent*)event;
- (void)scrollToPoint:(NSPoint)newOrigin;
- (NSRect)constrainBoundsRect:(NSRect)proposedBounds;
@property NSEdgeInsets contentInsets;
@property BOOL automaticallyAdjustsContentInsets;
@end

@interface NSScrollView : NSView
- (instancetype)initWithFrame:(NSRect)frameRect NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(readonly) NSRect documentVisibleRect;
@property(readonly) NSSize contentSize;
@property(nullable, strong) __kindof NSView* documentView;
@property(strong) NSClipView* contentView;
@property NSBorderType borderType;
@property(copy) NSColor* backgroundColor;
@property BOOL drawsBackground;
@property BOOL hasVerticalScroller;
@property BOOL hasHorizontalScroller;
@property(nullable, strong) NSScroller* verticalScroller;
@property(nullable, strong) NSScroller* horizontalScroller;
@property BOOL autohidesScrollers;
@property CGFloat verticalLineScroll;
@property CGFloat verticalPageScroll;
@property CGFloat lineScroll;
@property CGFloat pageScroll;
@property NSScrollerStyle scrollerStyle;
@property NSScrollElasticity horizontalScrollElasticity;
@property NSScrollElasticity verticalScrollElasticity;
@property BOOL automaticallyAdjustsContentInsets;
@property NSEdgeInsets contentInsets;
- (void)tile;
- (void)reflectScrolledClipView:(NSClipView*)clipView;
- (void)scrollWheel:(NSEvent*)event;
- (void)flashScrollers;
@end

NS_ASSUME_NONNULL_END
