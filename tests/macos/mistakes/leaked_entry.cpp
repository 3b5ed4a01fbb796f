// analysis: Potential leak of handle
#include <IOKit/IOKitLib.h>

bool hasAnother(io_iterator_t iterator) {
    const io_registry_entry_t entry = IOIteratorNext(iterator);
#ifdef MISTAKE
#else
    if (entry != IO_OBJECT_NULL) IOObjectRelease(entry);
#endif
    return entry != IO_OBJECT_NULL;
}
