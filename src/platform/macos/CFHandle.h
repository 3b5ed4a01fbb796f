// Owns one reference to a Core Foundation object, as functions with Create or Copy
// in their names return it. What a Get function returns never goes in here.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <utility>

namespace vantrel::macos {

template <class Reference>
class CFHandle {
  public:
    CFHandle() = default;
    // Takes over the reference that `owned` carries; null owns nothing.
    explicit CFHandle(Reference owned) : owned_(owned) {}
    CFHandle(CFHandle&& other) noexcept : owned_(std::exchange(other.owned_, nullptr)) {}
    CFHandle& operator=(CFHandle&& other) noexcept {
        std::swap(owned_, other.owned_);
        return *this;
    }
    ~CFHandle() {
        if (owned_ != nullptr) CFRelease(owned_);
    }

    // Valid while the handle owns it.
    Reference get() const { return owned_; }
    explicit operator bool() const { return owned_ != nullptr; }

  private:
    Reference owned_ = nullptr;
};

}  // namespace vantrel::macos
