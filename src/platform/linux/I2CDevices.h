// The computer's I2C buses, as /dev/i2c-N. A transfer is one message, start to stop.
//
// Nothing stays open between two transfers: an open bus would keep the kernel from taking
// it away when its monitor or dock is unplugged.
// Threads: any; two transfers on one bus at the same time are the caller's to avoid.
// Errors: a transfer gives 0, or why not (errno): ENXIO for nobody at the address, EBUSY for an address that
// a driver holds, ENOENT for a bus that isn't there, EACCES without permission.
#pragma once

#include <cstdint>
#include <span>

namespace vantrel::linux {

class I2CDevices {
  public:
    using Bus = unsigned;

    virtual ~I2CDevices() = default;
    virtual int write(Bus bus, std::uint8_t address, std::span<const std::uint8_t> bytes) = 0;
    // Fills all of `bytes`.
    virtual int read(Bus bus, std::uint8_t address, std::span<std::uint8_t> bytes) = 0;
};

}  // namespace vantrel::linux
