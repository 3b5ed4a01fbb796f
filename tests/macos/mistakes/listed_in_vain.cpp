// symbol check: listed, but not linked: CFRetain
#include <CoreFoundation/CoreFoundation.h>

#ifdef MISTAKE
CFTypeRef kept(CFTypeRef object) { return object; }
#else
CFTypeRef kept(CFTypeRef object) { return CFRetain(object); }
#endif
