// Stand-in for the platform's header of this name, and for what it takes from the
// kernel's.
#pragma once

#include <CoreFoundation/CFBase.h>

typedef unsigned int mach_port_t;
typedef int kern_return_t;
typedef mach_port_t io_object_t;
typedef io_object_t io_registry_entry_t;
typedef io_object_t io_service_t;
typedef io_object_t io_iterator_t;
typedef char io_name_t[128];
typedef UInt32 IOOptionBits;
typedef kern_return_t IOReturn;

#define KERN_SUCCESS 0
#define kIOReturnSuccess KERN_SUCCESS
#define kIOReturnError ((IOReturn)0xe00002bc)
#define IO_OBJECT_NULL ((io_object_t)0)
