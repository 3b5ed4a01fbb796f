// What the program has seen of the computer's monitors: the registry's entries that it
// looked into, the links that it opened, and every transfer through them.
//
// The first walk over the registry says which entries and links there are. A later one
// meets the same links under other handles: a link is known by the entries that the
// program looked into since the link before it.
//
// Threads: any. Lifetime: the clock outlives it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/Registry.h"
#include "platform/Transfer.h"
#include "runtime/Clock.h"

namespace vantrel::recording {

class Recording {
  public:
    struct Entry {
        std::string name;
        // Those that were asked for and are there.
        platform::PropertyDictionary properties;
        // The index of the link that was opened with it.
        std::optional<std::size_t> link;
        bool operator==(const Entry&) const = default;
    };
    // Belongs to the recording.
    struct Walk;
    // An entry of a walk.
    struct Place {
        std::shared_ptr<Walk> walk;
        std::size_t index = 0;
    };

    // Times count from now.
    explicit Recording(const runtime::Clock& clock) : clock_(clock), start_(clock.now()) {}

    std::shared_ptr<Walk> beginWalk();
    Place lookedInto(const std::shared_ptr<Walk>& walk, std::string name);
    void read(const Place& place, const std::string& key, const platform::PropertyValue& value);
    // The entry may be opened as this object.
    void named(const Place& place, std::uint32_t object);
    // `service` stands for the link from now on.
    void opened(std::uint32_t object, const void* service);

    runtime::MonotonicTime now() const { return clock_.now(); }
    // Ends now. `transfer` lacks its times.
    void transferred(const void* service, platform::Transfer transfer, runtime::MonotonicTime began);

    // Of the first walk.
    std::vector<Entry> entries() const;
    // Of a link, in order.
    std::vector<platform::Transfer> transfers(std::size_t link) const;
    // Nothing for a service of a link that the first walk didn't open.
    std::optional<std::size_t> link(const void* service) const;

  private:
    struct Link {
        std::vector<Entry> identity;
        std::vector<platform::Transfer> transfers;
    };

    std::optional<std::size_t> linkWith(const std::vector<Entry>& identity, Walk& walk);

    const runtime::Clock& clock_;
    const runtime::MonotonicTime start_;
    mutable std::mutex mutex_;
    std::shared_ptr<Walk> first_;
    std::vector<Link> links_;
    std::map<std::uint32_t, Place> objects_;
    std::map<const void*, std::size_t> services_;
};

}  // namespace vantrel::recording
