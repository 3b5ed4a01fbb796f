#include "platform/SubstituteLibraries.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/LibraryPaths.h"

namespace vantrel::platform {
namespace {

// A library's handle is the pointer to its path here.
constexpr std::array<const char*, 4> all{libraries::ioKit, libraries::skyLight, libraries::coreGraphics,
                                         libraries::displayServices};

template <class Function>
void* address(Function function) {
    return reinterpret_cast<void*>(function);
}

}  // namespace

void* SubstituteLibraries::open(const std::string& path) {
    const auto found = std::find(all.begin(), all.end(), std::string_view(path));
    return found != all.end() ? const_cast<char*>(*found) : nullptr;
}

void* SubstituteLibraries::lookUp(void* library, const std::string& symbol) {
    if (library == libraries::ioKit) {
        if (symbol == "IOAVServiceCreateWithService") return address(functions_.avCreate);
        if (symbol == "IOAVServiceWriteI2C") return address(functions_.avWrite);
        if (symbol == "IOAVServiceReadI2C") return address(functions_.avRead);
    }
    if (library == libraries::skyLight || library == libraries::coreGraphics) {
        if (symbol == "CGSConfigureDisplayEnabled") return address(functions_.configureEnabled);
    }
    if (library == libraries::displayServices) {
        if (symbol == "DisplayServicesGetBrightness") return address(functions_.getBrightness);
        if (symbol == "DisplayServicesSetBrightness") return address(functions_.setBrightness);
    }
    return nullptr;
}

}  // namespace vantrel::platform
