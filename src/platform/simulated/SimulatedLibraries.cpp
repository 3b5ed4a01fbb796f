#include "platform/simulated/SimulatedLibraries.h"

#include <atomic>
#include <iterator>

#include "platform/PrivateFunctions.h"
#include "platform/simulated/Status.h"
#include "runtime/Fatal.h"

namespace vantrel::simulated {
namespace {

std::atomic<SimulatedLibraries*> alive = nullptr;

SimulatedLibraries& libraries() {
    SimulatedLibraries* libraries = alive;
    runtime::require(libraries != nullptr, "a system function was called after its library had gone");
    return *libraries;
}

extern "C" {

static const void* simulatedAVServiceCreate(const void*, std::uint32_t registryEntry) {
    return libraries().services().create(registryEntry);
}

static std::int32_t simulatedAVServiceWriteI2C(const void* service, std::uint32_t chipAddress,
                                               std::uint32_t dataAddress, const void* bytes,
                                               std::uint32_t length) {
    if (bytes == nullptr && length > 0) return Status::badArgument;
    return libraries().services().write(service, chipAddress, dataAddress,
                                        {static_cast<const std::uint8_t*>(bytes), length});
}

static std::int32_t simulatedAVServiceReadI2C(const void* service, std::uint32_t chipAddress, std::uint32_t,
                                              void* bytes, std::uint32_t length) {
    if (bytes == nullptr && length > 0) return Status::badArgument;
    return libraries().services().read(service, chipAddress, {static_cast<std::uint8_t*>(bytes), length});
}

static std::int32_t simulatedConfigureDisplayEnabled(void* configuration, std::uint32_t display,
                                                     bool enabled) {
    return libraries().displays().configureEnabled(configuration, display,
                                                   enabled ? World::Output::on : World::Output::off);
}

static std::int32_t simulatedGetBrightness(std::uint32_t display, float* level) {
    const std::optional<float> brightness = libraries().world().brightness(display);
    if (!brightness) return Status::displayFailure;
    *level = *brightness;
    return Status::success;
}

static std::int32_t simulatedSetBrightness(std::uint32_t display, float level) {
    return libraries().world().setBrightness(display, level) ? Status::success : Status::displayFailure;
}

}  // extern "C"

struct Symbol {
    const char* library;
    const char* name;
    void* address;
};

template <class Function>
Symbol symbol(const char* library, const char* name, Function function) {
    return {library, name, reinterpret_cast<void*>(function)};
}

// Several symbols of one library name it with the same pointer, its handle.
constexpr const char ioKit[] = "/System/Library/Frameworks/IOKit.framework/IOKit";
constexpr const char skyLight[] = "/System/Library/PrivateFrameworks/SkyLight.framework/SkyLight";
constexpr const char coreGraphics[] = "/System/Library/Frameworks/CoreGraphics.framework/CoreGraphics";
constexpr const char displayServices[] =
    "/System/Library/PrivateFrameworks/DisplayServices.framework/DisplayServices";

const std::vector<Symbol>& symbols() {
    // Assigning to the seam's types proves that the signatures are the same.
    static const platform::AVServiceCreate create = simulatedAVServiceCreate;
    static const platform::AVServiceWriteI2C write = simulatedAVServiceWriteI2C;
    static const platform::AVServiceReadI2C read = simulatedAVServiceReadI2C;
    static const platform::ConfigureDisplayEnabled configure = simulatedConfigureDisplayEnabled;
    static const platform::GetDisplayBrightness getBrightness = simulatedGetBrightness;
    static const platform::SetDisplayBrightness setBrightness = simulatedSetBrightness;
    static const std::vector<Symbol> all{
        symbol(ioKit, "IOAVServiceCreateWithService", create),
        symbol(ioKit, "IOAVServiceWriteI2C", write),
        symbol(ioKit, "IOAVServiceReadI2C", read),
        symbol(skyLight, "CGSConfigureDisplayEnabled", configure),
        symbol(coreGraphics, "CGSConfigureDisplayEnabled", configure),
        symbol(displayServices, "DisplayServicesGetBrightness", getBrightness),
        symbol(displayServices, "DisplayServicesSetBrightness", setBrightness),
    };
    return all;
}

}  // namespace

SimulatedLibraries::SimulatedLibraries(World& world, SimulatedDisplayServices& displays,
                                       AVServiceTable& services)
    : world_(world), displays_(displays), services_(services) {
    const auto& missing = world.desk().missingSymbols;
    missing_.insert(missing.begin(), missing.end());
    runtime::require(alive.exchange(this) == nullptr, "two simulated computers at the same time");
}

SimulatedLibraries::~SimulatedLibraries() { alive = nullptr; }

void* SimulatedLibraries::open(const std::string& path) {
    for (const Symbol& each : symbols()) {
        if (path == each.library) return const_cast<char*>(each.library);
    }
    return nullptr;
}

void* SimulatedLibraries::lookUp(void* library, const std::string& name) {
    if (missing_.contains(name)) return nullptr;
    for (const Symbol& each : symbols()) {
        if (library == each.library && name == each.name) return each.address;
    }
    return nullptr;
}

}  // namespace vantrel::simulated
