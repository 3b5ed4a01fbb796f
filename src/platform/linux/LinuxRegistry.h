// The monitors that are plugged in as the walk over the I/O registry shows them: for each
// a framebuffer with the monitor's identity, and then the proxy of its AV service.
//
// Those with a picture come first: of equal monitors without serial numbers, which are
// told apart by their order only, the ones that are shown get their own buses.
// Threads: any.
#pragma once

#include <memory>
#include <mutex>
#include <vector>

#include "platform/Registry.h"
#include "platform/linux/AVServices.h"
#include "platform/linux/Inventory.h"

namespace vantrel::linux {

class LinuxRegistry : public platform::Registry {
  public:
    // Both outlive it.
    LinuxRegistry(const Inventory& inventory, AVServices& services)
        : inventory_(inventory), services_(services) {}

    std::unique_ptr<platform::RegistryIterator> iterateServicePlane() override;
    void releaseService(const void* service) override { services_.release(service); }

    // Which displays are online, in their order.
    void setOnline(std::vector<platform::DisplayID> online);

  private:
    std::vector<platform::DisplayID> online() const;

    const Inventory& inventory_;
    AVServices& services_;
    mutable std::mutex mutex_;
    std::vector<platform::DisplayID> online_;
};

}  // namespace vantrel::linux
