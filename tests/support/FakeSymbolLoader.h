// System libraries that a test makes up, and a record of what was asked for.
// Set it up before it is used; any thread may use it then.
#pragma once

#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "platform/SymbolLoader.h"

namespace vantrel::test {

class FakeSymbolLoader : public platform::SymbolLoader {
  public:
    // Makes a library that opens, with no symbols yet.
    void addLibrary(const std::string& path) { libraries_[path]; }
    template <class Function>
    void addSymbol(const std::string& path, const std::string& symbol, Function* function) {
        libraries_[path][symbol] = reinterpret_cast<void*>(function);
    }

    void* open(const std::string& path) override {
        record("open " + path);
        const auto library = libraries_.find(path);
        return library == libraries_.end() ? nullptr : &library->second;
    }

    void* lookUp(void* library, const std::string& symbol) override {
        record("look up " + symbol);
        const auto& symbols = *static_cast<const std::map<std::string, void*>*>(library);
        const auto found = symbols.find(symbol);
        return found == symbols.end() ? nullptr : found->second;
    }

    // "open <path>" and "look up <symbol>", in order.
    const std::vector<std::string>& calls() const { return calls_; }

  private:
    void record(std::string call) {
        const std::lock_guard lock(mutex_);
        calls_.push_back(std::move(call));
    }

    std::map<std::string, std::map<std::string, void*>> libraries_;
    std::mutex mutex_;
    std::vector<std::string> calls_;
};

}  // namespace vantrel::test
