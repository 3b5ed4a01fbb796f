// The AV service handles that the program holds: each the way to one monitor's I2C bus.
//
// A handle is for the adapter that it was made for. When that has gone (a dock unplugged,
// a driver loaded again) or leads to another monitor, transfers fail with ENODEV until the
// program takes a fresh one. So they do for a monitor without a bus, which has a handle all
// the same: the program gives a monitor without one the handle that resembles it most.
// Only a live handle may be used or released: anything else stops the program.
// Threads: any. Statuses: 0, or an errno.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "platform/AVServiceHandles.h"
#include "platform/linux/AnswerLog.h"
#include "platform/linux/I2CDevices.h"
#include "platform/linux/Inventory.h"

namespace vantrel::linux {

class AVServices {
  public:
    // Everything outlives it.
    AVServices(const Inventory& inventory, I2CDevices& buses, AnswerLog& answers)
        : inventory_(inventory), buses_(buses), answers_(answers) {}
    AVServices(const AVServices&) = delete;
    AVServices& operator=(const AVServices&) = delete;

    // The registry's object of a display is its identifier. Null for a built-in panel.
    const void* create(platform::DisplayID display);
    void release(const void* service) { handles_.release(service); }
    // The data address is the first byte of the message, as DDC/CI has it on the bus.
    std::int32_t write(const void* service, std::uint32_t chip, std::uint32_t dataAddress,
                       std::span<const std::uint8_t> bytes);
    // DDC/CI replies have no address within.
    std::int32_t read(const void* service, std::uint32_t chip, std::span<std::uint8_t> bytes);
    // Handles that were created and not yet released.
    std::size_t live() const { return handles_.live(); }

  private:
    struct Service {
        platform::DisplayID display = 0;
        std::optional<Adapter> adapter;
    };

    template <class Transfer>
    std::int32_t transfer(const void* service, std::uint32_t chip, const Transfer& transfer);

    const Inventory& inventory_;
    I2CDevices& buses_;
    AnswerLog& answers_;
    platform::AVServiceHandles<Service> handles_;
};

}  // namespace vantrel::linux
