#include "platform/simulated/AVServiceTable.h"

#include <utility>

#include "platform/simulated/Status.h"
#include "runtime/Fatal.h"

namespace vantrel::simulated {

const void* AVServiceTable::create(std::uint32_t registryEntry) {
    const auto& entries = world_.desk().registry;
    if (registryEntry == 0 || registryEntry > entries.size()) return nullptr;
    const RegistryEntryPlan& entry = entries[registryEntry - 1];
    if (entry.kind != RegistryEntryPlan::Kind::proxy || !world_.isConnected(entry.display)) return nullptr;
    SimulatedMonitor* monitor = world_.monitor(entry.display);
    if (monitor == nullptr) return nullptr;
    auto service = std::make_unique<Service>(Service{entry.display, monitor, world_.reconfigurations()});
    const void* handle = service.get();
    const std::lock_guard lock(mutex_);
    services_.emplace(handle, std::move(service));
    return handle;
}

void AVServiceTable::release(const void* service) {
    const std::lock_guard lock(mutex_);
    runtime::require(services_.erase(service) == 1, "an AV service was released that nobody holds");
}

std::int32_t AVServiceTable::write(const void* service, std::uint32_t chip, std::uint32_t dataAddress,
                                   std::span<const std::uint8_t> bytes) {
    const Service used = find(service);
    const std::int32_t status = linkStatus(used);
    return status != Status::success ? status : used.monitor->write(chip, dataAddress, bytes);
}

std::int32_t AVServiceTable::read(const void* service, std::uint32_t chip, std::span<std::uint8_t> bytes) {
    const Service used = find(service);
    const std::int32_t status = linkStatus(used);
    return status != Status::success ? status : used.monitor->read(chip, bytes);
}

std::size_t AVServiceTable::live() const {
    const std::lock_guard lock(mutex_);
    return services_.size();
}

AVServiceTable::Service AVServiceTable::find(const void* service) const {
    const std::lock_guard lock(mutex_);
    const auto found = services_.find(service);
    runtime::require(found != services_.end(), "a transfer through an AV service that nobody holds");
    return *found->second;
}

std::int32_t AVServiceTable::linkStatus(const Service& service) const {
    if (!world_.isPluggedIn(service.display)) return Status::noDevice;
    const bool isStale =
        service.reconfigurations != world_.reconfigurations() && service.monitor->handlesGoStale();
    if (isStale) return Status::noDevice;
    return world_.isAsleep() ? Status::notResponding : Status::success;
}

}  // namespace vantrel::simulated
