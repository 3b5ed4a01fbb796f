// Settings as the system's preferences keep them: CFData, CFNumber with a signed
// 64-bit integer, CFString, and CFDictionary of CFNumber with a double or CFString.
// Threads: any.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <optional>

#include "platform/Defaults.h"
#include "platform/macos/CFHandle.h"

namespace vantrel::macos::CFDefaultsValue {

// Null when the system can't make it.
CFHandle<CFTypeRef> make(const platform::DefaultsValue& value);

// Nothing for an object of another type. Entries of other types are left out.
std::optional<platform::DefaultsValue> read(CFTypeRef object);

}  // namespace vantrel::macos::CFDefaultsValue
