// Opens system libraries and looks symbols up in them at run time.
// Threads: any.
#pragma once

#include <string>

namespace vantrel::platform {

class SymbolLoader {
  public:
    virtual ~SymbolLoader() = default;
    // Opens the library with lazy binding; null when it can't be opened. A
    // library that opened stays open.
    virtual void* open(const std::string& path) = 0;
    // The address of `symbol` in a library that `open` returned, or null.
    virtual void* lookUp(void* library, const std::string& symbol) = 0;
};

}  // namespace vantrel::platform
