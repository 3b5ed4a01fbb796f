// The AV services that a platform which stands in for macOS has given out, each behind a
// handle: what the private functions take and give.
// Threads: any. Errors: only a live handle may be used or released: anything else stops
// the program.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include "runtime/Fatal.h"

namespace vantrel::platform {

template <class Service>
class AVServiceHandles {
  public:
    const void* add(Service added) {
        auto service = std::make_unique<const Service>(std::move(added));
        const void* handle = service.get();
        const std::lock_guard lock(mutex_);
        services_.emplace(handle, std::move(service));
        return handle;
    }
    void release(const void* handle) {
        const std::lock_guard lock(mutex_);
        runtime::require(services_.erase(handle) == 1, "an AV service was released that nobody holds");
    }
    // For one transfer, whatever is released meanwhile.
    Service find(const void* handle) const {
        const std::lock_guard lock(mutex_);
        const auto found = services_.find(handle);
        runtime::require(found != services_.end(), "a transfer through an AV service that nobody holds");
        return *found->second;
    }
    // Added and not yet released.
    std::size_t live() const {
        const std::lock_guard lock(mutex_);
        return services_.size();
    }

  private:
    mutable std::mutex mutex_;
    std::map<const void*, std::unique_ptr<const Service>> services_;
};

}  // namespace vantrel::platform
