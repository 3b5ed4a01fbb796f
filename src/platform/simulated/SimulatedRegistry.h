// The I/O registry of the simulated computer. Entries of a display that is not
// connected are not there; a walk sees the desk as it is at each of its steps.
// Threads: any, as Registry asks.
#pragma once

#include "platform/Registry.h"
#include "platform/simulated/AVServiceTable.h"
#include "platform/simulated/World.h"

namespace vantrel::simulated {

class SimulatedRegistry : public platform::Registry {
  public:
    SimulatedRegistry(World& world, AVServiceTable& services) : world_(world), services_(services) {}

    std::unique_ptr<platform::RegistryIterator> iterateServicePlane() override;
    void releaseService(const void* service) override { services_.release(service); }

  private:
    World& world_;
    AVServiceTable& services_;
};

}  // namespace vantrel::simulated
