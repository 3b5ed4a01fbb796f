// A registry without entries that keeps what is given back to it.
// Threads: as a test uses it, one at a time.
#pragma once

#include <vector>

#include "platform/Registry.h"

namespace vantrel::test {

class EmptyRegistry : public platform::Registry {
  public:
    std::unique_ptr<platform::RegistryIterator> iterateServicePlane() override { return nullptr; }
    void releaseService(const void* service) override { released_.push_back(service); }

    const std::vector<const void*>& released() const { return released_; }

  private:
    std::vector<const void*> released_;
};

}  // namespace vantrel::test
