// Included before every file that is analysed: tells clang's analyser which functions of IOKit hand
// out objects that have to be released. It knows that for Core Foundation, not for I/O objects,
// which are numbers; but it has a checker for numbers that are handles, of types with these names
// (tools/macos/analyze.py defines them) and functions with this attribute.
#pragma once
#include <IOKit/IOKitLib.h>

#undef CF_RELEASES_ARGUMENT
#define CF_RELEASES_ARGUMENT __attribute__((cf_consumed))

#define STANDIN_ACQUIRED __attribute__((acquire_handle("Fuchsia")))
#define STANDIN_RELEASED __attribute__((release_handle("Fuchsia")))

extern "C" {
kern_return_t IOObjectRelease(io_object_t object STANDIN_RELEASED);
kern_return_t IOServiceClose(io_connect_t connect STANDIN_RELEASED);
kern_return_t IORegistryCreateIterator(mach_port_t mainPort, const io_name_t plane, IOOptionBits options,
                                       io_iterator_t* iterator STANDIN_ACQUIRED);
kern_return_t IORegistryEntryCreateIterator(io_registry_entry_t entry, const io_name_t plane,
                                            IOOptionBits options, io_iterator_t* iterator STANDIN_ACQUIRED);
kern_return_t IORegistryEntryGetChildIterator(io_registry_entry_t entry, const io_name_t plane,
                                              io_iterator_t* iterator STANDIN_ACQUIRED);
kern_return_t IORegistryEntryGetParentIterator(io_registry_entry_t entry, const io_name_t plane,
                                               io_iterator_t* iterator STANDIN_ACQUIRED);
kern_return_t IORegistryEntryGetChildEntry(io_registry_entry_t entry, const io_name_t plane,
                                           io_registry_entry_t* child STANDIN_ACQUIRED);
kern_return_t IORegistryEntryGetParentEntry(io_registry_entry_t entry, const io_name_t plane,
                                            io_registry_entry_t* parent STANDIN_ACQUIRED);
kern_return_t IOServiceGetMatchingServices(mach_port_t mainPort,
                                           CFDictionaryRef matching CF_RELEASES_ARGUMENT,
                                           io_iterator_t* existing STANDIN_ACQUIRED);
kern_return_t standinAcquire(io_object_t* object STANDIN_ACQUIRED);
}

// The checker follows handles that come through a pointer only, so these come that way here.
inline io_object_t standinReturned() {
    io_object_t object = 0;
    if (standinAcquire(&object) != 0) return 0;
    __builtin_assume(object != 0);
    return object;
}
inline io_object_t standinIteratorNext(io_iterator_t) { return standinReturned(); }
inline io_registry_entry_t standinGetRootEntry(mach_port_t) { return standinReturned(); }
inline io_registry_entry_t standinEntryFromPath(mach_port_t, const char*) { return standinReturned(); }
inline io_service_t standinGetMatchingService(mach_port_t, CFDictionaryRef CF_RELEASES_ARGUMENT) {
    return standinReturned();
}
#define IOIteratorNext standinIteratorNext
#define IORegistryGetRootEntry standinGetRootEntry
#define IORegistryEntryFromPath standinEntryFromPath
#define IOServiceGetMatchingService standinGetMatchingService
