// Another registry with a record of the walks over it, which can be made to seem
// empty. Threads: as Registry asks, but set isEmpty while nobody walks.
#pragma once

#include "platform/Registry.h"
#include "support/CallRecord.h"

namespace vantrel::test {

class WatchedRegistry : public platform::Registry {
  public:
    WatchedRegistry(platform::Registry& real, CallRecord& record) : real_(real), record_(record) {}

    bool isEmpty = false;

    std::unique_ptr<platform::RegistryIterator> iterateServicePlane() override {
        record_.add("walk the registry");
        return isEmpty ? nullptr : real_.iterateServicePlane();
    }
    void releaseService(const void* service) override { real_.releaseService(service); }

  private:
    platform::Registry& real_;
    CallRecord& record_;
};

}  // namespace vantrel::test
