#include "platform/PrivateFunctions.h"

#include "platform/LibraryPaths.h"

namespace vantrel::platform {
void* PrivateFunctions::symbol(const char* name, std::initializer_list<const char*> paths) {
    for (const char* path : paths) {
        void* library = loader_.open(path);
        if (library == nullptr) continue;
        if (void* address = loader_.lookUp(library, name)) return address;
    }
    return nullptr;
}

template <class Function>
Function PrivateFunctions::resolve(Lazy<Function>& lazy, const char* name,
                                   std::initializer_list<const char*> paths) {
    std::call_once(lazy.once, [&] { lazy.function = reinterpret_cast<Function>(symbol(name, paths)); });
    return lazy.function;
}

AVServiceCreate PrivateFunctions::avCreate() {
    return resolve(avCreate_, "IOAVServiceCreateWithService", {libraries::ioKit});
}

AVServiceWriteI2C PrivateFunctions::avWrite() {
    return resolve(avWrite_, "IOAVServiceWriteI2C", {libraries::ioKit});
}

AVServiceReadI2C PrivateFunctions::avRead() {
    return resolve(avRead_, "IOAVServiceReadI2C", {libraries::ioKit});
}

ConfigureDisplayEnabled PrivateFunctions::configureEnabled() {
    return resolve(configureEnabled_, "CGSConfigureDisplayEnabled",
                   {libraries::skyLight, libraries::coreGraphics});
}

GetDisplayBrightness PrivateFunctions::getBrightness() {
    return resolve(getBrightness_, "DisplayServicesGetBrightness", {libraries::displayServices});
}

SetDisplayBrightness PrivateFunctions::setBrightness() {
    return resolve(setBrightness_, "DisplayServicesSetBrightness", {libraries::displayServices});
}

}  // namespace vantrel::platform
