#include "platform/linux/AVServices.h"

#include <cerrno>
#include <vector>

namespace vantrel::linux {
namespace {

// I2C addresses have seven bits; what is above is reserved (I2C specification, 3.1.12).
constexpr std::uint32_t highestAddress = 0x77;

}  // namespace

const void* AVServices::create(platform::DisplayID display) {
    const auto found = inventory_.display(display);
    if (!found || found->connector.isBuiltIn()) return nullptr;
    return handles_.add({display, found->adapter});
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
    const Service used = handles_.find(service);
    if (chip > highestAddress) return EINVAL;
    const int error = used.adapter && inventory_.leadsTo(used.display, *used.adapter)
                          ? transfer(used.adapter->bus, static_cast<std::uint8_t>(chip))
                          : ENODEV;
    answers_.note(used.display, error);
    return error;
}

}  // namespace vantrel::linux
