// A header that says of some of its pointers only whether they may be nil.
#pragma once
#import <AppKit/AppKit.h>

#ifdef MISTAKE
void hide(NSView* view);
#else
void hide(NSView* _Nonnull view);
#endif
void show(NSView* _Nullable view);
