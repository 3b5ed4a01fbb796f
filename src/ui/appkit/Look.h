// The system's fonts, symbols and colours for what nodes ask for. All of them follow
// the appearance, the accent colour and the contrast that the user has chosen.
// Threads: main thread.
#pragma once

#import <AppKit/AppKit.h>

#include "ui/Element.h"

namespace vantrel::appkit::Look {

NSFont* _Nonnull font(ui::Font kind);
NSColor* _Nonnull tone(ui::Tone tone);
// The controls that go with a font.
NSControlSize controlSize(ui::Font kind);
// In the size and weight of a font; an empty picture for a name that the system
// doesn't know.
NSImage* _Nonnull symbol(const ui::Symbol& name, ui::Font kind);

// Panels behind what belongs together.
NSColor* _Nonnull cardFill();
NSColor* _Nonnull cardBorder();
NSColor* _Nonnull warningFill();

void fillRounded(NSRect rectangle, double radius, NSColor* _Nonnull fill, NSColor* _Nullable border);

}  // namespace vantrel::appkit::Look
