// The I/O registry: the tree of devices and services that the operating system
// keeps, as the walk over its service plane sees it.
//
// Threads: any. Each iterator and entry is used by one thread at a time.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vantrel::platform {

// A property of a registry entry. Types that nobody here reads become monostate.
struct PropertyValue;
using PropertyDictionary = std::map<std::string, PropertyValue>;
struct PropertyValue : std::variant<std::monostate, std::string, std::int64_t, PropertyDictionary> {
    using variant::variant;
};

class RegistryEntry {
  public:
    virtual ~RegistryEntry() = default;
    // The bytes of the 128-byte name buffer up to the first NUL; any bytes.
    virtual std::string name() = 0;
    // Nothing when the entry has no such property.
    virtual std::optional<PropertyValue> property(std::string_view key) = 0;
    // What the private functions take; valid while this object lives.
    virtual std::uint32_t object() const = 0;
};

class RegistryIterator {
  public:
    virtual ~RegistryIterator() = default;
    // The next entry, or null at the end.
    virtual std::unique_ptr<RegistryEntry> next() = 0;
};

class Registry {
  public:
    virtual ~Registry() = default;
    // A recursive walk over the "IOService" plane, or null when there is none.
    virtual std::unique_ptr<RegistryIterator> iterateServicePlane() = 0;
    // Gives back an object that a private function returned as owned.
    virtual void releaseService(const void* service) = 0;
};

}  // namespace vantrel::platform
