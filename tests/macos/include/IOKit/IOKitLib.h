// A few declarations, to be replaced by the full stand-in.
#pragma once
#include <CoreFoundation/CoreFoundation.h>
#ifdef __cplusplus
extern "C" {
#endif
typedef unsigned int mach_port_t;
typedef int kern_return_t;
typedef mach_port_t io_object_t;
typedef io_object_t io_iterator_t;
typedef io_object_t io_registry_entry_t;
typedef io_object_t io_service_t;
typedef uint32_t IOOptionBits;
typedef char io_name_t[128];
#define IO_OBJECT_NULL ((io_object_t)0)
extern const mach_port_t kIOMainPortDefault;
kern_return_t IORegistryCreateIterator(mach_port_t mainPort, const io_name_t plane, IOOptionBits options, io_iterator_t *iterator);
io_object_t IOIteratorNext(io_iterator_t iterator);
kern_return_t IOObjectRelease(io_object_t object);
#ifdef __cplusplus
}
#endif
