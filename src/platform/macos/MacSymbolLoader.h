// The dynamic linker. What it opens stays open: the symbols are used until the
// program ends. Threads: any.
#pragma once

#include "platform/SymbolLoader.h"

namespace vantrel::macos {

class MacSymbolLoader : public platform::SymbolLoader {
  public:
    void* open(const std::string& path) override;
    void* lookUp(void* library, const std::string& symbol) override;
};

}  // namespace vantrel::macos
