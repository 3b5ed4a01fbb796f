// Stand-in for the platform's header of this name.
#pragma once

#include <CoreFoundation/CFBase.h>
#include <CoreGraphics/CGDirectDisplay.h>
#include <CoreGraphics/CGError.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef struct _CGDisplayConfigRef* CGDisplayConfigRef;

typedef CF_ENUM(uint32_t, CGConfigureOption) {
    kCGConfigureForAppOnly = 0,
    kCGConfigureForSession = 1,
    kCGConfigurePermanently = 2,
};

CGError CGBeginDisplayConfiguration(CGDisplayConfigRef _Nullable* _Nullable config);
CGError CGCancelDisplayConfiguration(CGDisplayConfigRef _Nullable config);
CGError CGCompleteDisplayConfiguration(CGDisplayConfigRef _Nullable config, CGConfigureOption option);

typedef CF_OPTIONS(uint32_t, CGDisplayChangeSummaryFlags) {
    kCGDisplayBeginConfigurationFlag = (1U << 0),
    kCGDisplayMovedFlag = (1U << 1),
    kCGDisplaySetMainFlag = (1U << 2),
    kCGDisplaySetModeFlag = (1U << 3),
    kCGDisplayAddFlag = (1U << 4),
    kCGDisplayRemoveFlag = (1U << 5),
    kCGDisplayEnabledFlag = (1U << 8),
    kCGDisplayDisabledFlag = (1U << 9),
    kCGDisplayMirrorFlag = (1U << 10),
    kCGDisplayUnMirrorFlag = (1U << 11),
    kCGDisplayDesktopShapeChangedFlag = (1U << 12),
};

typedef void (*CGDisplayReconfigurationCallBack)(CGDirectDisplayID display, CGDisplayChangeSummaryFlags flags,
                                                 void* _Nullable userInfo);
CGError CGDisplayRegisterReconfigurationCallback(CGDisplayReconfigurationCallBack _Nullable callback,
                                                 void* _Nullable userInfo);
CGError CGDisplayRemoveReconfigurationCallback(CGDisplayReconfigurationCallBack _Nullable callback,
                                               void* _Nullable userInfo);

boolean_t CGDisplayIsBuiltin(CGDirectDisplayID display);
uint32_t CGDisplayVendorNumber(CGDirectDisplayID display);
uint32_t CGDisplayModelNumber(CGDirectDisplayID display);
uint32_t CGDisplaySerialNumber(CGDirectDisplayID display);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
