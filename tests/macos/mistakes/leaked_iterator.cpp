// analysis: Potential leak of handle
#include <IOKit/IOKitLib.h>

bool canBeWalked() {
    io_iterator_t iterator = IO_OBJECT_NULL;
    if (IORegistryCreateIterator(kIOMainPortDefault, "IOService", kIORegistryIterateRecursively, &iterator) !=
        KERN_SUCCESS) {
        return false;
    }
#ifdef MISTAKE
#else
    IOObjectRelease(iterator);
#endif
    return true;
}
