// I2C buses none of which can hold the program up: a transfer that takes too long is given
// up as failed with ETIMEDOUT. Until the kernel has ended it, every other transfer on that
// bus fails at once with EAGAIN; so does one that comes while another is under way.
//
// Each bus has a thread of its own, which is the one that hangs.
// Threads: keepBuses on the main thread; transfers on any, also on the main thread.
// Lifetime: `devices` and `scheduler` outlive the scheduler's threads.
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>

#include "platform/linux/I2CDevices.h"
#include "runtime/Scheduler.h"

namespace vantrel::linux {

class BoundedI2C : public I2CDevices {
  public:
    // Adapters give up by themselves after a second, as a rule (kernel documentation,
    // I2C_TIMEOUT); whoever is silent for twice as long will not speak.
    static constexpr std::chrono::seconds bound{2};

    BoundedI2C(I2CDevices& devices, runtime::Scheduler& scheduler)
        : devices_(devices), scheduler_(scheduler) {}
    BoundedI2C(const BoundedI2C&) = delete;
    BoundedI2C& operator=(const BoundedI2C&) = delete;

    // Transfers go to these buses; on any other they fail with ENODEV.
    void keepBuses(const std::set<Bus>& buses);

    int write(Bus bus, std::uint8_t address, std::span<const std::uint8_t> bytes) override;
    int read(Bus bus, std::uint8_t address, std::span<std::uint8_t> bytes) override;

  private:
    class Lane;

    std::shared_ptr<Lane> lane(Bus bus) const;

    I2CDevices& devices_;
    runtime::Scheduler& scheduler_;
    mutable std::mutex mutex_;
    std::map<Bus, std::shared_ptr<Lane>> lanes_;
};

}  // namespace vantrel::linux
