#include "platform/simulated/AVServiceTable.h"

#include "platform/simulated/Status.h"

namespace vantrel::simulated {

const void* AVServiceTable::create(std::uint32_t registryEntry) {
    const auto& entries = world_.desk().registry;
    if (registryEntry == 0 || registryEntry > entries.size()) return nullptr;
    const RegistryEntryPlan& entry = entries[registryEntry - 1];
    if (entry.kind != RegistryEntryPlan::Kind::proxy || !world_.isConnected(entry.display)) return nullptr;
    SimulatedMonitor* monitor = world_.monitor(entry.display);
    if (monitor == nullptr) return nullptr;
    return handles_.add({entry.display, monitor, world_.reconfigurations()});
}

std::int32_t AVServiceTable::write(const void* service, std::uint32_t chip, std::uint32_t dataAddress,
                                   std::span<const std::uint8_t> bytes) {
    const Service used = handles_.find(service);
    const std::int32_t status = linkStatus(used);
    return status != Status::success ? status : used.monitor->write(chip, dataAddress, bytes);
}

std::int32_t AVServiceTable::read(const void* service, std::uint32_t chip, std::span<std::uint8_t> bytes) {
    const Service used = handles_.find(service);
    const std::int32_t status = linkStatus(used);
    return status != Status::success ? status : used.monitor->read(chip, bytes);
}

std::int32_t AVServiceTable::linkStatus(const Service& service) const {
    if (!world_.isPluggedIn(service.display)) return Status::noDevice;
    const bool isStale =
        service.reconfigurations != world_.reconfigurations() && service.monitor->handlesGoStale();
    if (isStale) return Status::noDevice;
    return world_.isAsleep() ? Status::notResponding : Status::success;
}

}  // namespace vantrel::simulated
