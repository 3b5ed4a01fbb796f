// A ui::Drawing as a picture that the system colours.
// Threads: main thread.
#pragma once

#import <AppKit/AppKit.h>

#include "ui/Drawing.h"

namespace vantrel::appkit {

NSImage* _Nonnull templateImage(const ui::Drawing& drawing);

}  // namespace vantrel::appkit
