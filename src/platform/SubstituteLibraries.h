// System libraries where there are none: the private functions of another system under
// the paths and names by which PrivateFunctions looks for them.
// Threads: any.
#pragma once

#include <string>

#include "platform/PrivateFunctions.h"
#include "platform/SymbolLoader.h"

namespace vantrel::platform {

class SubstituteLibraries : public SymbolLoader {
  public:
    // Null for one that this system doesn't have.
    struct Functions {
        AVServiceCreate avCreate = nullptr;
        AVServiceWriteI2C avWrite = nullptr;
        AVServiceReadI2C avRead = nullptr;
        ConfigureDisplayEnabled configureEnabled = nullptr;
        GetDisplayBrightness getBrightness = nullptr;
        SetDisplayBrightness setBrightness = nullptr;
    };

    explicit SubstituteLibraries(const Functions& functions) : functions_(functions) {}

    void* open(const std::string& path) override;
    void* lookUp(void* library, const std::string& symbol) override;

  private:
    const Functions functions_;
};

}  // namespace vantrel::platform
