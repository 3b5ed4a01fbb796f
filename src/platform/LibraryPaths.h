// Where macOS has the functions of `PrivateFunctions`; elsewhere only names to ask by.
#pragma once

namespace vantrel::platform::libraries {

inline constexpr char ioKit[] = "/System/Library/Frameworks/IOKit.framework/IOKit";
inline constexpr char skyLight[] = "/System/Library/PrivateFrameworks/SkyLight.framework/SkyLight";
inline constexpr char coreGraphics[] = "/System/Library/Frameworks/CoreGraphics.framework/CoreGraphics";
inline constexpr char displayServices[] =
    "/System/Library/PrivateFrameworks/DisplayServices.framework/DisplayServices";

}  // namespace vantrel::platform::libraries
