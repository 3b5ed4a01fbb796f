// Owns one reference to an object of the I/O registry.
#pragma once

#include <IOKit/IOKitLib.h>
#include <utility>

namespace vantrel::macos {

class IOHandle {
  public:
    // Takes over the reference that `owned` carries; IO_OBJECT_NULL owns nothing.
    explicit IOHandle(io_object_t owned) : owned_(owned) {}
    IOHandle(IOHandle&& other) noexcept : owned_(std::exchange(other.owned_, IO_OBJECT_NULL)) {}
    ~IOHandle() {
        if (owned_ != IO_OBJECT_NULL) IOObjectRelease(owned_);
    }

    io_object_t get() const { return owned_; }

  private:
    io_object_t owned_;
};

}  // namespace vantrel::macos
