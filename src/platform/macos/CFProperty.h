// A property of a registry entry, as the system hands it out, made into the
// seam's. Threads: any.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include "platform/Registry.h"

namespace vantrel::macos::CFProperty {

// Texts, integers and dictionaries with texts as keys; anything else is monostate.
platform::PropertyValue value(CFTypeRef object);

}  // namespace vantrel::macos::CFProperty
