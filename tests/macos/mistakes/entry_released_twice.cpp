// analysis: Releasing a previously released handle
#include <IOKit/IOKitLib.h>

void skip(io_iterator_t iterator) {
    const io_registry_entry_t entry = IOIteratorNext(iterator);
    if (entry == IO_OBJECT_NULL) return;
    IOObjectRelease(entry);
#ifdef MISTAKE
    IOObjectRelease(entry);
#else
#endif
}
