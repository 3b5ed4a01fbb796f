// An owned handle of the video link behind a monitor, which the private I2C
// functions take. Copies share the handle; the last one gives it back to the
// registry, which must outlive them all. May be used from any thread.
#pragma once

#include <memory>

#include "platform/Registry.h"

namespace vantrel::platform {

class AVService {
  public:
    // Takes over the one reference that `service` carries.
    AVService(Registry& registry, const void* service)
        : service_(service, [&registry](const void* owned) { registry.releaseService(owned); }) {}

    const void* get() const { return service_.get(); }

  private:
    std::shared_ptr<const void> service_;
};

}  // namespace vantrel::platform
