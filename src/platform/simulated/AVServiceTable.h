// The AV service handles that the program holds, and the transfers through them.
//
// Only a live handle may be used or released: anything else stops the program.
// Threads: any.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/AVServiceHandles.h"
#include "platform/simulated/World.h"

namespace vantrel::simulated {

class AVServiceTable {
  public:
    // A registry entry as the private functions take it: its place in the walk.
    // Counts from 1, so that 0 is no entry.
    static std::uint32_t object(std::size_t place) { return static_cast<std::uint32_t>(place + 1); }

    explicit AVServiceTable(World& world) : world_(world) {}

    // Null unless the entry is the proxy of a connected display whose cable
    // carries DDC/CI.
    const void* create(std::uint32_t registryEntry);
    void release(const void* service) { handles_.release(service); }
    std::int32_t write(const void* service, std::uint32_t chip, std::uint32_t dataAddress,
                       std::span<const std::uint8_t> bytes);
    // The offset means nothing to DDC/CI.
    std::int32_t read(const void* service, std::uint32_t chip, std::span<std::uint8_t> bytes);
    // Handles that were created and not yet released.
    std::size_t live() const { return handles_.live(); }

  private:
    struct Service {
        platform::DisplayID display = 0;
        SimulatedMonitor* monitor = nullptr;
        // How many reconfigurations there had been.
        std::uint64_t reconfigurations = 0;
    };

    // Whether a transfer reaches the bus at all.
    std::int32_t linkStatus(const Service& service) const;

    World& world_;
    platform::AVServiceHandles<Service> handles_;
};

}  // namespace vantrel::simulated
