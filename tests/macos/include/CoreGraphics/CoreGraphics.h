// A few declarations, to be replaced by the full stand-in.
#pragma once
#include <CoreFoundation/CoreFoundation.h>
#ifdef __cplusplus
extern "C" {
#endif
typedef double CGFloat;
struct CGPoint {
    CGFloat x;
    CGFloat y;
};
typedef struct CGPoint CGPoint;
struct CGSize {
    CGFloat width;
    CGFloat height;
};
typedef struct CGSize CGSize;
struct CGRect {
    CGPoint origin;
    CGSize size;
};
typedef struct CGRect CGRect;
typedef int32_t CGError;
typedef uint32_t CGDirectDisplayID;
CGError CGGetOnlineDisplayList(uint32_t maxDisplays, CGDirectDisplayID *onlineDisplays, uint32_t *displayCount);
#ifdef __cplusplus
}
#endif
