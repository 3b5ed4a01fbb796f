#include "platform/recording/RecordingLibraries.h"

#include <atomic>

#include "runtime/Fatal.h"

namespace vantrel::recording {
namespace {

using platform::Transfer;

std::atomic<RecordingLibraries*> alive = nullptr;

RecordingLibraries& libraries() {
    RecordingLibraries* libraries = alive;
    runtime::require(libraries != nullptr, "a recorded function was called after its recording had ended");
    return *libraries;
}

std::vector<std::uint8_t> copyOf(const void* bytes, std::uint32_t length) {
    if (bytes == nullptr) return {};
    const auto* first = static_cast<const std::uint8_t*>(bytes);
    return {first, first + length};
}

extern "C" {

static const void* recordingCreate(const void* allocator, std::uint32_t registryEntry) {
    const void* service = libraries().real().avCreate()(allocator, registryEntry);
    if (service != nullptr) libraries().recording().opened(registryEntry, service);
    return service;
}

static std::int32_t recordingWrite(const void* service, std::uint32_t chipAddress, std::uint32_t dataAddress,
                                   const void* bytes, std::uint32_t length) {
    Recording& recording = libraries().recording();
    const auto began = recording.now();
    const std::int32_t status =
        libraries().real().avWrite()(service, chipAddress, dataAddress, bytes, length);
    Transfer transfer;
    transfer.direction = Transfer::Direction::write;
    transfer.chip = chipAddress;
    transfer.address = dataAddress;
    transfer.bytes = copyOf(bytes, length);
    transfer.length = length;
    transfer.status = status;
    recording.transferred(service, std::move(transfer), began);
    return status;
}

static std::int32_t recordingRead(const void* service, std::uint32_t chipAddress, std::uint32_t offset,
                                  void* bytes, std::uint32_t length) {
    Recording& recording = libraries().recording();
    const auto began = recording.now();
    const std::int32_t status = libraries().real().avRead()(service, chipAddress, offset, bytes, length);
    Transfer transfer;
    transfer.direction = Transfer::Direction::read;
    transfer.chip = chipAddress;
    transfer.address = offset;
    if (status == 0) transfer.bytes = copyOf(bytes, length);
    transfer.length = length;
    transfer.status = status;
    recording.transferred(service, std::move(transfer), began);
    return status;
}

}  // extern "C"

template <class Function>
void* address(Function function) {
    return reinterpret_cast<void*>(function);
}

// Null where the real one is.
template <class Function>
void* inPlaceOf(Function real, Function own) {
    return real == nullptr ? nullptr : address(own);
}

}  // namespace

RecordingLibraries::RecordingLibraries(platform::PrivateFunctions& real, Recording& recording)
    : real_(real), recording_(recording) {
    runtime::require(alive.exchange(this) == nullptr, "two recordings at the same time");
}

RecordingLibraries::~RecordingLibraries() { alive = nullptr; }

void* RecordingLibraries::lookUp(void*, const std::string& symbol) {
    if (symbol == "IOAVServiceCreateWithService")
        return inPlaceOf<platform::AVServiceCreate>(real_.avCreate(), recordingCreate);
    if (symbol == "IOAVServiceWriteI2C")
        return inPlaceOf<platform::AVServiceWriteI2C>(real_.avWrite(), recordingWrite);
    if (symbol == "IOAVServiceReadI2C")
        return inPlaceOf<platform::AVServiceReadI2C>(real_.avRead(), recordingRead);
    if (symbol == "CGSConfigureDisplayEnabled") return address(real_.configureEnabled());
    if (symbol == "DisplayServicesGetBrightness") return address(real_.getBrightness());
    if (symbol == "DisplayServicesSetBrightness") return address(real_.setBrightness());
    return nullptr;
}

}  // namespace vantrel::recording
