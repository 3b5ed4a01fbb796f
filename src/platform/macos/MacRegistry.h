// The I/O registry of the system. A walk that the system breaks off, because the
// registry has changed meanwhile, ends early.
// Threads: any, as Registry asks.
#pragma once

#include "platform/Registry.h"

namespace vantrel::macos {

class MacRegistry : public platform::Registry {
  public:
    std::unique_ptr<platform::RegistryIterator> iterateServicePlane() override;
    void releaseService(const void* service) override;
};

}  // namespace vantrel::macos
