// analysis: Potential leak of an object
#include <CoreFoundation/CoreFoundation.h>

CFIndex length(const UInt8* bytes, CFIndex count) {
    CFDataRef data = CFDataCreate(kCFAllocatorDefault, bytes, count);
    if (!data) return 0;
    const CFIndex length = CFDataGetLength(data);
#ifdef MISTAKE
#else
    CFRelease(data);
#endif
    return length;
}
