// A few declarations, to be replaced by the full stand-in.
#pragma once
#include <stddef.h>
#include <stdint.h>
#ifdef __cplusplus
extern "C" {
#endif
#ifdef __OBJC__
#define STANDIN_BRIDGED(type) __attribute__((objc_bridge(type)))
#else
#define STANDIN_BRIDGED(type)
#endif
typedef unsigned char Boolean;
typedef signed long CFIndex;
typedef unsigned long CFTypeID;
typedef uint32_t CFStringEncoding;
typedef const void *CFTypeRef;
typedef const struct STANDIN_BRIDGED(NSString) __CFString *CFStringRef;
typedef const struct STANDIN_BRIDGED(NSArray) __CFArray *CFArrayRef;
typedef const struct STANDIN_BRIDGED(NSDictionary) __CFDictionary *CFDictionaryRef;
typedef struct STANDIN_BRIDGED(NSMutableDictionary) __CFDictionary *CFMutableDictionaryRef;
typedef const struct __CFAllocator *CFAllocatorRef;
extern const CFAllocatorRef kCFAllocatorDefault;
enum { kCFStringEncodingUTF8 = 0x08000100 };
CFTypeRef CFRetain(CFTypeRef);
void CFRelease(CFTypeRef);
CFStringRef CFStringCreateWithCString(CFAllocatorRef, const char *, CFStringEncoding);
CFIndex CFStringGetLength(CFStringRef);
#define CFSTR(text) ((CFStringRef)__builtin___CFStringMakeConstantString("" text ""))
#ifdef __cplusplus
}
#endif
