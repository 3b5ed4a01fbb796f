#include "platform/macos/MacSymbolLoader.h"

#include <dlfcn.h>

namespace vantrel::macos {

void* MacSymbolLoader::open(const std::string& path) { return dlopen(path.c_str(), RTLD_LAZY); }

void* MacSymbolLoader::lookUp(void* library, const std::string& symbol) {
    return dlsym(library, symbol.c_str());
}

}  // namespace vantrel::macos
