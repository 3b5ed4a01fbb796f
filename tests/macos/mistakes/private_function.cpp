// symbol check: private, must not be linked: IOAVServiceCreate
#include <CoreFoundation/CoreFoundation.h>

extern "C" CFTypeRef IOAVServiceCreate(CFAllocatorRef allocator);

#ifdef MISTAKE
CFTypeRef made() { return IOAVServiceCreate(nullptr); }
#else
CFTypeRef made() { return CFRunLoopGetMain(); }
#endif
