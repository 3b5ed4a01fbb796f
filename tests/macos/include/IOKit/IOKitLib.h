// Stand-in for the platform's header of this name.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitKeys.h>
#include <IOKit/IOTypes.h>

CF_EXTERN_C_BEGIN

extern const mach_port_t kIOMainPortDefault API_AVAILABLE(macos(12.0));

enum {
    kIORegistryIterateRecursively = 0x00000001,
    kIORegistryIterateParents = 0x00000002,
};

kern_return_t IOObjectRelease(io_object_t object);
// The iterator is the caller's to release.
kern_return_t IORegistryCreateIterator(mach_port_t mainPort, const io_name_t plane, IOOptionBits options,
                                       io_iterator_t* iterator);
// The entry is the caller's to release; 0 at the end.
io_object_t IOIteratorNext(io_iterator_t iterator);
kern_return_t IORegistryEntryGetName(io_registry_entry_t entry, io_name_t name);
CFTypeRef IORegistryEntryCreateCFProperty(io_registry_entry_t entry, CFStringRef key,
                                          CFAllocatorRef allocator, IOOptionBits options) CF_RETURNS_RETAINED;

CF_EXTERN_C_END
