#include "platform/PrivateFunctions.h"

namespace vantrel::platform {
namespace {

constexpr const char* ioKit = "/System/Library/Frameworks/IOKit.framework/IOKit";
constexpr const char* skyLight = "/System/Library/PrivateFrameworks/SkyLight.framework/SkyLight";
constexpr const char* coreGraphics = "/System/Library/Frameworks/CoreGraphics.framework/CoreGraphics";
constexpr const char* displayServices =
    "/System/Library/PrivateFrameworks/DisplayServices.framework/DisplayServices";

}  // namespace

void* PrivateFunctions::symbol(const char* name, std::initializer_list<const char*> libraries) {
    for (const char* path : libraries) {
        void* library = loader_.open(path);
        if (library == nullptr) continue;
        if (void* address = loader_.lookUp(library, name)) return address;
    }
    return nullptr;
}

template <class Function>
Function PrivateFunctions::resolve(Lazy<Function>& lazy, const char* name,
                                   std::initializer_list<const char*> libraries) {
    std::call_once(lazy.once, [&] { lazy.function = reinterpret_cast<Function>(symbol(name, libraries)); });
    return lazy.function;
}

AVServiceCreate PrivateFunctions::avCreate() {
    return resolve(avCreate_, "IOAVServiceCreateWithService", {ioKit});
}

AVServiceWriteI2C PrivateFunctions::avWrite() { return resolve(avWrite_, "IOAVServiceWriteI2C", {ioKit}); }

AVServiceReadI2C PrivateFunctions::avRead() { return resolve(avRead_, "IOAVServiceReadI2C", {ioKit}); }

ConfigureDisplayEnabled PrivateFunctions::configureEnabled() {
    return resolve(configureEnabled_, "CGSConfigureDisplayEnabled", {skyLight, coreGraphics});
}

GetDisplayBrightness PrivateFunctions::getBrightness() {
    return resolve(getBrightness_, "DisplayServicesGetBrightness", {displayServices});
}

SetDisplayBrightness PrivateFunctions::setBrightness() {
    return resolve(setBrightness_, "DisplayServicesSetBrightness", {displayServices});
}

}  // namespace vantrel::platform
