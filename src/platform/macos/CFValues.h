// Core Foundation objects of unknown type, read as plain values: each function
// gives nothing for an object of another type.
// Threads: any.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace vantrel::macos::CFValues {

std::optional<std::string> text(CFTypeRef object);
std::optional<std::string> bytes(CFTypeRef object);
// Nothing either for a number that is no such integer. A Boolean is no number.
std::optional<std::int64_t> integer(CFTypeRef object);
std::optional<double> real(CFTypeRef object);

// What a dictionary holds under texts; other keys are left out. The objects are the
// dictionary's.
using Entries = std::map<std::string, CFTypeRef>;
std::optional<Entries> entries(CFTypeRef object);

}  // namespace vantrel::macos::CFValues
