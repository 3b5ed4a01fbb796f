// What an object of the I/O registry is on the desk.
#pragma once

#include <IOKit/IOKitLib.h>
#include <cstdint>

namespace vantrel::macos::fake {

// The number that the desk's private functions take. Any thread.
std::uint32_t deskEntry(io_object_t name);

}  // namespace vantrel::macos::fake
