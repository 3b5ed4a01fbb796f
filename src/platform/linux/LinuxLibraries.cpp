#include "platform/linux/LinuxLibraries.h"

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <optional>

#include "platform/linux/Status.h"
#include "runtime/Fatal.h"

namespace vantrel::linux {
namespace {

std::atomic<LinuxLibraries*> alive = nullptr;

LinuxLibraries& libraries() {
    LinuxLibraries* libraries = alive;
    runtime::require(libraries != nullptr, "a system function was called after its library had gone");
    return *libraries;
}

extern "C" {

static const void* linuxAVServiceCreate(const void*, std::uint32_t registryEntry) {
    return libraries().services().create(registryEntry);
}

static std::int32_t linuxAVServiceWriteI2C(const void* service, std::uint32_t chipAddress,
                                           std::uint32_t dataAddress, const void* bytes,
                                           std::uint32_t length) {
    if (bytes == nullptr && length > 0) return EINVAL;
    return libraries().services().write(service, chipAddress, dataAddress,
                                        {static_cast<const std::uint8_t*>(bytes), length});
}

static std::int32_t linuxAVServiceReadI2C(const void* service, std::uint32_t chipAddress, std::uint32_t,
                                          void* bytes, std::uint32_t length) {
    if (bytes == nullptr && length > 0) return EINVAL;
    return libraries().services().read(service, chipAddress, {static_cast<std::uint8_t*>(bytes), length});
}

static std::int32_t linuxConfigureDisplayEnabled(void* configuration, std::uint32_t display, bool enabled) {
    using Output = LinuxDisplayServices::Output;
    return libraries().displays().configureEnabled(configuration, display,
                                                   enabled ? Output::on : Output::off);
}

static std::int32_t linuxGetBrightness(std::uint32_t display, float* level) {
    if (!libraries().displays().isBuiltIn(display)) return Status::failure;
    const std::optional<float> found = libraries().backlight().level();
    if (!found) return Status::failure;
    *level = *found;
    return Status::success;
}

static std::int32_t linuxSetBrightness(std::uint32_t display, float level) {
    if (!libraries().displays().isBuiltIn(display)) return Status::failure;
    return libraries().backlight().setLevel(level) ? Status::success : Status::failure;
}

}  // extern "C"

platform::SubstituteLibraries::Functions functions(LinuxLibraries::Switching switching) {
    return {linuxAVServiceCreate,
            linuxAVServiceWriteI2C,
            linuxAVServiceReadI2C,
            switching == LinuxLibraries::Switching::possible ? linuxConfigureDisplayEnabled : nullptr,
            linuxGetBrightness,
            linuxSetBrightness};
}

}  // namespace

LinuxLibraries::LinuxLibraries(LinuxDisplayServices& displays, AVServices& services, Backlight& backlight,
                               Switching switching)
    : displays_(displays), services_(services), backlight_(backlight), substitutes_(functions(switching)) {
    runtime::require(alive.exchange(this) == nullptr, "two Linux platforms at the same time");
}

LinuxLibraries::~LinuxLibraries() { alive = nullptr; }

}  // namespace vantrel::linux
