// Stand-in for the platform's header of this name.
#pragma once

#include <CoreFoundation/CFBase.h>
#include <CoreGraphics/CGError.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef unsigned int boolean_t;
typedef uint32_t CGDirectDisplayID;
typedef float CGGammaValue;

CGError CGGetOnlineDisplayList(uint32_t maxDisplays, CGDirectDisplayID* _Nullable onlineDisplays,
                               uint32_t* _Nullable displayCount);

uint32_t CGDisplayGammaTableCapacity(CGDirectDisplayID display);
CGError CGSetDisplayTransferByTable(CGDirectDisplayID display, uint32_t tableSize,
                                    const CGGammaValue* _Nullable redTable,
                                    const CGGammaValue* _Nullable greenTable,
                                    const CGGammaValue* _Nullable blueTable);
CGError CGGetDisplayTransferByTable(CGDirectDisplayID display, uint32_t capacity,
                                    CGGammaValue* _Nullable redTable, CGGammaValue* _Nullable greenTable,
                                    CGGammaValue* _Nullable blueTable, uint32_t* _Nullable sampleCount);
void CGDisplayRestoreColorSyncSettings(void);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
