// The system's libraries with the private functions, which are the desk's.
#include <array>
#include <cstring>
#include <dlfcn.h>

#include "macos/fake/DeskObjects.h"
#include "macos/fake/FakeMac.h"
#include "macos/fake/Objects.h"
#include "runtime/Fatal.h"

namespace vantrel::macos::fake {
namespace {

constexpr std::int32_t failure = 1000;

platform::PrivateFunctions& functions() { return FakeMac::current().desk().functions; }
bool fails(const char* function) { return FakeMac::current().calls().fails(function); }
const void* deskHandle(const void* service) { return live<Service>(service, serviceType).handle; }

extern "C" {

static const void* serviceCreate(const void*, std::uint32_t object) {
    if (fails("IOAVServiceCreateWithService")) return nullptr;
    const void* handle = functions().avCreate()(nullptr, deskEntry(object));
    if (handle == nullptr) return nullptr;
    const auto release = [handle] { FakeMac::current().desk().registry.releaseService(handle); };
    return born(new Service(handle, release));
}
static std::int32_t serviceWrite(const void* service, std::uint32_t chip, std::uint32_t address,
                                 const void* bytes, std::uint32_t length) {
    const void* handle = deskHandle(service);
    if (fails("IOAVServiceWriteI2C")) return kIOReturnError;
    return functions().avWrite()(handle, chip, address, bytes, length);
}
static std::int32_t serviceRead(const void* service, std::uint32_t chip, std::uint32_t offset, void* bytes,
                                std::uint32_t length) {
    const void* handle = deskHandle(service);
    if (fails("IOAVServiceReadI2C")) return kIOReturnError;
    return functions().avRead()(handle, chip, offset, bytes, length);
}
static std::int32_t configureEnabled(void* configuration, std::uint32_t display, bool enabled) {
    if (fails("CGSConfigureDisplayEnabled")) return failure;
    return functions().configureEnabled()(configuration, display, enabled);
}
static std::int32_t getBrightness(std::uint32_t display, float* level) {
    if (fails("DisplayServicesGetBrightness")) return failure;
    return functions().getBrightness()(display, level);
}
static std::int32_t setBrightness(std::uint32_t display, float level) {
    if (fails("DisplayServicesSetBrightness")) return failure;
    return functions().setBrightness()(display, level);
}

}  // extern "C"

// A handle is the address of its path here.
constexpr std::size_t count = 4;
constexpr std::array<const char[80], count> paths{
    "/System/Library/Frameworks/IOKit.framework/IOKit",
    "/System/Library/PrivateFrameworks/SkyLight.framework/SkyLight",
    "/System/Library/Frameworks/CoreGraphics.framework/CoreGraphics",
    "/System/Library/PrivateFrameworks/DisplayServices.framework/DisplayServices",
};
constexpr std::size_t ioKit = 0;
constexpr std::size_t skyLight = 1;
constexpr std::size_t coreGraphics = 2;
constexpr std::size_t displayServices = 3;

template <class Function>
void* address(bool isThere, Function function) {
    return isThere ? reinterpret_cast<void*>(function) : nullptr;
}

// A function that the desk lacks is not there.
void* find(std::size_t library, const std::string& name) {
    auto& desk = functions();
    if (library == ioKit) {
        if (name == "IOAVServiceCreateWithService") return address(desk.avCreate() != nullptr, serviceCreate);
        if (name == "IOAVServiceWriteI2C") return address(desk.avWrite() != nullptr, serviceWrite);
        if (name == "IOAVServiceReadI2C") return address(desk.avRead() != nullptr, serviceRead);
    } else if (library == skyLight || library == coreGraphics) {
        if (name == "CGSConfigureDisplayEnabled") {
            return address(desk.configureEnabled() != nullptr, configureEnabled);
        }
    } else if (library == displayServices) {
        if (name == "DisplayServicesGetBrightness") {
            return address(desk.getBrightness() != nullptr, getBrightness);
        }
        if (name == "DisplayServicesSetBrightness") {
            return address(desk.setBrightness() != nullptr, setBrightness);
        }
    }
    return nullptr;
}

void* open(const char* path, int mode) {
    // Without RTLD_NOLOAD and its like, which find what somebody else has opened.
    runtime::require(mode == RTLD_LAZY, "a library opened in a mode that nobody here needs");
    if (fails("dlopen")) return nullptr;
    for (const auto& library : paths) {
        if (std::strcmp(path, library) == 0) return const_cast<char(*)[80]>(&library);
    }
    return nullptr;
}

void* lookUp(std::size_t library, const char* name) { return fails("dlsym") ? nullptr : find(library, name); }

}  // namespace
}  // namespace vantrel::macos::fake

// The linker leads everybody here, a sanitizer too, before it is ready: calls that
// are not for the Mac's libraries go on without touching anything.
#ifdef __clang__
#define NOT_INSTRUMENTED __attribute__((disable_sanitizer_instrumentation))
#else
#define NOT_INSTRUMENTED __attribute__((no_sanitize_address, no_sanitize_undefined))
#endif

extern "C" {

void* __real_dlopen(const char* path, int mode);
void* __real_dlsym(void* library, const char* name);

NOT_INSTRUMENTED void* __wrap_dlopen(const char* path, int mode) {
    static constexpr char system[] = "/System/Library/";
    std::size_t same = 0;
    while (path != nullptr && system[same] != 0 && path[same] == system[same]) ++same;
    return path != nullptr && system[same] == 0 ? vantrel::macos::fake::open(path, mode)
                                                : __real_dlopen(path, mode);
}

NOT_INSTRUMENTED void* __wrap_dlsym(void* library, const char* name) {
    namespace fake = vantrel::macos::fake;
    for (std::size_t index = 0; index < fake::count; ++index) {
        const auto* path = reinterpret_cast<const char*>(&fake::paths) + index * sizeof(char[80]);
        if (library == path) return fake::lookUp(index, name);
    }
    return __real_dlsym(library, name);
}

}  // extern "C"
