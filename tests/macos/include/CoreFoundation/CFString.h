// Stand-in for the platform's header of this name.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef UInt32 CFStringEncoding;
enum : CFStringEncoding {
    kCFStringEncodingASCII = 0x0600,
    kCFStringEncodingUTF8 = 0x08000100,
    kCFStringEncodingUTF16 = 0x0100,
};

// A constant string: neither retained nor released by who uses it.
#ifdef __APPLE__
#define CFSTR(text) ((CFStringRef)__builtin___CFStringMakeConstantString("" text ""))
#else
#define CFSTR(text) (__CFStringMakeConstantString("" text ""))
#endif
CFStringRef __CFStringMakeConstantString(const char* text);

CFTypeID CFStringGetTypeID(void);

// Null when the bytes are not text of that encoding.
CFStringRef _Nullable CFStringCreateWithBytes(CFAllocatorRef _Nullable alloc, const UInt8* _Nullable bytes,
                                              CFIndex numBytes, CFStringEncoding encoding,
                                              Boolean isExternalRepresentation) CF_RETURNS_RETAINED;
CFStringRef _Nullable CFStringCreateWithCharacters(CFAllocatorRef _Nullable alloc,
                                                   const UniChar* _Nullable chars,
                                                   CFIndex numChars) CF_RETURNS_RETAINED;
// In UTF-16 code units.
CFIndex CFStringGetLength(CFStringRef theString);
void CFStringGetCharacters(CFStringRef theString, CFRange range, UniChar* _Nullable buffer);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
