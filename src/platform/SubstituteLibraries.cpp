#include "platform/SubstituteLibraries.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace vantrel::platform {
namespace {

// A library's handle is the pointer to its path here.
constexpr const char ioKit[] = "/System/Library/Frameworks/IOKit.framework/IOKit";
constexpr const char skyLight[] = "/System/Library/PrivateFrameworks/SkyLight.framework/SkyLight";
constexpr const char coreGraphics[] = "/System/Library/Frameworks/CoreGraphics.framework/CoreGraphics";
constexpr const char displayServices[] =
    "/System/Library/PrivateFrameworks/DisplayServices.framework/DisplayServices";
constexpr std::array<const char*, 4> libraries{ioKit, skyLight, coreGraphics, displayServices};

template <class Function>
void* address(Function function) {
    return reinterpret_cast<void*>(function);
}

}  // namespace

void* SubstituteLibraries::open(const std::string& path) {
    const auto found = std::find(libraries.begin(), libraries.end(), std::string_view(path));
    return found != libraries.end() ? const_cast<char*>(*found) : nullptr;
}

void* SubstituteLibraries::lookUp(void* library, const std::string& symbol) {
    if (library == ioKit) {
        if (symbol == "IOAVServiceCreateWithService") return address(functions_.avCreate);
        if (symbol == "IOAVServiceWriteI2C") return address(functions_.avWrite);
        if (symbol == "IOAVServiceReadI2C") return address(functions_.avRead);
    }
    if (library == skyLight || library == coreGraphics) {
        if (symbol == "CGSConfigureDisplayEnabled") return address(functions_.configureEnabled);
    }
    if (library == displayServices) {
        if (symbol == "DisplayServicesGetBrightness") return address(functions_.getBrightness);
        if (symbol == "DisplayServicesSetBrightness") return address(functions_.setBrightness);
    }
    return nullptr;
}

}  // namespace vantrel::platform
