#include "platform/linux/AVServices.h"

#include <cerrno>
#include <utility>
#include <vector>

#include "runtime/Fatal.h"

namespace vantrel::linux {
namespace {

// I2C addresses have seven bits; what is above is reserved (I2C specification, 3.1.12).
constexpr std::uint32_t highestAddress = 0x77;

}  // namespace

const void* AVServices::create(platform::DisplayID display) {
    const auto found = inventory_.display(display);
    if (!found || found->connector.isBuiltIn()) return nullptr;
    auto service = std::make_unique<Service>(Service{display, found->adapter});
    const void* handle = service.get();
    const std::lock_guard lock(mutex_);
    services_.emplace(handle, std::move(service));
    return handle;
}

void AVServices::release(const void* service) {
    const std::lock_guard lock(mutex_);
    runtime::require(services_.erase(service) == 1, "an AV service was released that nobody holds");
}

std::int32_t AVServices::write(const void* service, std::uint32_t chip, std::uint32_t dataAddress,
                               std::span<const std::uint8_t> bytes) {
    std::vector<std::uint8_t> message{static_cast<std::uint8_t>(dataAddress)};
    message.insert(message.end(), bytes.begin(), bytes.end());
    return transfer(service, chip, [&](I2CDevices::Bus bus, std::uint8_t address) {
        return buses_.write(bus, address, message);
    });
}

std::int32_t AVServices::read(const void* service, std::uint32_t chip, std::span<std::uint8_t> bytes) {
    return transfer(service, chip, [&](I2CDevices::Bus bus, std::uint8_t address) {
        return buses_.read(bus, address, bytes);
    });
}

template <class Transfer>
std::int32_t AVServices::transfer(const void* service, std::uint32_t chip, const Transfer& transfer) {
    const Service used = find(service);
    if (chip > highestAddress) return EINVAL;
    const int error = used.adapter && inventory_.leadsTo(used.display, *used.adapter)
                          ? transfer(used.adapter->bus, static_cast<std::uint8_t>(chip))
                          : ENODEV;
    answers_.note(used.display, error);
    return error;
}

std::size_t AVServices::live() const {
    const std::lock_guard lock(mutex_);
    return services_.size();
}

AVServices::Service AVServices::find(const void* service) const {
    const std::lock_guard lock(mutex_);
    const auto found = services_.find(service);
    runtime::require(found != services_.end(), "a transfer through an AV service that nobody holds");
    return *found->second;
}

}  // namespace vantrel::linux
