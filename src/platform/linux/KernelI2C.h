// The kernel's I2C buses through its device files (kernel documentation, "i2c/dev-interface").
// Threads: any. Time: a transfer takes as long as the bus does.
#pragma once

#include <string>

#include "platform/linux/I2CDevices.h"

namespace vantrel::linux {

class KernelI2C : public I2CDevices {
  public:
    int write(Bus bus, std::uint8_t address, std::span<const std::uint8_t> bytes) override;
    int read(Bus bus, std::uint8_t address, std::span<std::uint8_t> bytes) override;

    static std::string path(Bus bus) { return "/dev/i2c-" + std::to_string(bus); }
};

}  // namespace vantrel::linux
