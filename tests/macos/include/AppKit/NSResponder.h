// Whoever can be given an event.
#pragma once
#import <AppKit/NSAccessibility.h>
#import <AppKit/NSEvent.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSResponder : NSObject <NSCoding>
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(nullable, assign) NSResponder* nextResponder;
- (BOOL)tryToPerform:(SEL)action with:(nullable id)object;
- (BOOL)performKeyEquivalent:(NSEvent*)event;
- (void)mouseDown:(NSEvent*)event;
- (void)rightMouseDown:(NSEvent*)event;
- (void)otherMouseDown:(NSEvent*)event;
- (void)mouseUp:(NSEvent*)event;
- (void)rightMouseUp:(NSEvent*)event;
- (void)otherMouseUp:(NSEvent*)event;
- (void)mouseMoved:(NSEvent*)event;
- (void)mouseDragged:(NSEvent*)event;
- (void)scrollWheel:(NSEvent*)event;
- (void)rightMouseDragged:(NSEvent*)event;
- (void)mouseEntered:(NSEvent*)event;
- (void)mouseExited:(NSEvent*)event;
- (void)keyDown:(NSEvent*)event;
- (void)keyUp:(NSEvent*)event;
- (void)flagsChanged:(NSEvent*)event;
- (void)cursorUpdate:(NSEvent*)event;
- (void)noResponderFor:(SEL)eventSelector;
@property(readonly) BOOL acceptsFirstResponder;
- (BOOL)becomeFirstResponder;
- (BOOL)resignFirstResponder;
- (void)interpretKeyEvents:(NSArray<NSEvent*>*)events;
- (void)flushBufferedKeyEvents;
@property(nullable, strong) NSMenu* menu;
- (BOOL)validateProposedFirstResponder:(NSResponder*)responder forEvent:(nullable NSEvent*)event;
- (BOOL)wantsScrollEventsForSwipeTrackingOnAxis:(NSInteger)axis;
@property(nullable, readonly, strong) NSUndoManager* undoManager;
@end

// What the keys are bound to. NSResponder declares these without implementing them.
@protocol NSStandardKeyBindingResponding <NSObject>
@optional
- (void)insertText:(id)text;
- (void)doCommandBySelector:(SEL)selector;
- (void)moveForward:(nullable id)sender;
- (void)moveRight:(nullable id)sender;
- (void)moveBackward:(nullable id)sender;
- (void)moveLeft:(nullable id)sender;
- (void)moveUp:(nullable id)sender;
- (void)moveDown:(nullable id)sender;
- (void)moveToBeginningOfLine:(nullable id)sender;
- (void)moveToEndOfLine:(nullable id)sender;
- (void)moveToBeginningOfDocument:(nullable id)sender;
- (void)moveToEndOfDocument:(nullable id)sender;
- (void)pageUp:(nullable id)sender;
- (void)pageDown:(nullable id)sender;
- (void)scrollToBeginningOfDocument:(nullable id)sender;
- (void)scrollToEndOfDocument:(nullable id)sender;
- (void)selectAll:(nullable id)sender;
- (void)insertTab:(nullable id)sender;
- (void)insertBacktab:(nullable id)sender;
- (void)insertNewline:(nullable id)sender;
- (void)deleteBackward:(nullable id)sender;
- (void)deleteForward:(nullable id)sender;
- (void)cancelOperation:(nullable id)sender;
@end

@interface NSResponder (NSStandardKeyBindingMethods) <NSStandardKeyBindingResponding>
@end

NS_ASSUME_NONNULL_END
