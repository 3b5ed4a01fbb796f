// The system's functions that no public interface offers, found at run time.
//
// Each is looked up once, on first use, from any thread, and then kept for the
// life of the platform, as absent too: a missing one (null) disables the feature
// that it serves and is no error.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <mutex>
#include <string>

#include "platform/SymbolLoader.h"

namespace vantrel::platform {

// The C signatures, the same on every platform. A status of 0 is success.
extern "C" {
// Allocator (null: the default one), registry entry -> owned handle or null.
using AVServiceCreate = const void* (*)(const void* allocator, std::uint32_t registryEntry);
using AVServiceWriteI2C = std::int32_t (*)(const void* service, std::uint32_t chipAddress,
                                           std::uint32_t dataAddress, const void* bytes,
                                           std::uint32_t length);
using AVServiceReadI2C = std::int32_t (*)(const void* service, std::uint32_t chipAddress,
                                          std::uint32_t offset, void* bytes, std::uint32_t length);
using ConfigureDisplayEnabled = std::int32_t (*)(void* configuration, std::uint32_t display, bool enabled);
// Levels from 0 to 1.
using GetDisplayBrightness = std::int32_t (*)(std::uint32_t display, float* level);
using SetDisplayBrightness = std::int32_t (*)(std::uint32_t display, float level);
}

class PrivateFunctions {
  public:
    // The loader must outlive this object.
    explicit PrivateFunctions(SymbolLoader& loader) : loader_(loader) {}
    PrivateFunctions(const PrivateFunctions&) = delete;
    PrivateFunctions& operator=(const PrivateFunctions&) = delete;

    AVServiceCreate avCreate();
    AVServiceWriteI2C avWrite();
    AVServiceReadI2C avRead();
    ConfigureDisplayEnabled configureEnabled();
    GetDisplayBrightness getBrightness();
    SetDisplayBrightness setBrightness();

  private:
    template <class Function>
    struct Lazy {
        std::once_flag once;
        Function function = nullptr;
    };

    template <class Function>
    Function resolve(Lazy<Function>& lazy, const char* symbol, std::initializer_list<const char*> paths);
    void* symbol(const char* name, std::initializer_list<const char*> paths);

    SymbolLoader& loader_;
    Lazy<AVServiceCreate> avCreate_;
    Lazy<AVServiceWriteI2C> avWrite_;
    Lazy<AVServiceReadI2C> avRead_;
    Lazy<ConfigureDisplayEnabled> configureEnabled_;
    Lazy<GetDisplayBrightness> getBrightness_;
    Lazy<SetDisplayBrightness> setBrightness_;
};

}  // namespace vantrel::platform
