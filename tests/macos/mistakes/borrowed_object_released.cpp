// analysis: Incorrect decrement of the reference count
#include <CoreFoundation/CoreFoundation.h>

void use(CFDictionaryRef dictionary) {
    const void* keys[1];
    const void* values[1];
    CFDictionaryGetKeysAndValues(dictionary, keys, values);
    CFRunLoopRef loop = CFRunLoopGetMain();
    CFRunLoopWakeUp(loop);
#ifdef MISTAKE
    CFRelease(loop);
#else
    CFRunLoopWakeUp(loop);
#endif
}
