#include "platform/simulated/SimulatedLibraries.h"

#include <atomic>

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

constexpr platform::SubstituteLibraries::Functions functions{
    simulatedAVServiceCreate,         simulatedAVServiceWriteI2C, simulatedAVServiceReadI2C,
    simulatedConfigureDisplayEnabled, simulatedGetBrightness,     simulatedSetBrightness};

}  // namespace

SimulatedLibraries::SimulatedLibraries(World& world, SimulatedDisplayServices& displays,
                                       AVServiceTable& services)
    : world_(world), displays_(displays), services_(services), substitutes_(functions) {
    const auto& missing = world.desk().missingSymbols;
    missing_.insert(missing.begin(), missing.end());
    runtime::require(alive.exchange(this) == nullptr, "two simulated computers at the same time");
}

SimulatedLibraries::~SimulatedLibraries() { alive = nullptr; }

void* SimulatedLibraries::lookUp(void* library, const std::string& name) {
    return missing_.contains(name) ? nullptr : substitutes_.lookUp(library, name);
}

}  // namespace vantrel::simulated
