// Texts to and from Core Foundation, of any length and with any characters.
// Threads: any.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <string>
#include <string_view>

#include "platform/macos/CFHandle.h"

namespace vantrel::macos::CFText {

// Bytes that are no UTF-8 become replacement characters. Null when the system
// can't make it.
CFHandle<CFStringRef> make(std::string_view text);

// As UTF-8; half a surrogate pair becomes a replacement character.
std::string read(CFStringRef string);

}  // namespace vantrel::macos::CFText
