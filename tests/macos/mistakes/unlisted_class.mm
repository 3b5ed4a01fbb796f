// symbol check: not in unlisted_class.symbols.txt: class NSAlert
#import <AppKit/AppKit.h>

#ifdef MISTAKE
NSObject* _Nonnull made() { return [NSAlert new]; }
#else
NSObject* _Nonnull made() { return [NSBox new]; }
#endif
