// I2C buses with devices at their addresses, which take as long and fail as a test says.
// Threads: any.
#pragma once

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <span>
#include <utility>
#include <vector>

#include "platform/linux/I2CDevices.h"
#include "platform/simulated/SimulatedMonitor.h"
#include "runtime/Clock.h"

namespace vantrel::linux {

class FakeI2C : public I2CDevices {
  public:
    // Each gives 0 or an errno.
    struct Device {
        std::function<int(std::span<const std::uint8_t>)> write;
        std::function<int(std::span<std::uint8_t>)> read;
    };
    struct Counts {
        unsigned writes = 0;
        unsigned reads = 0;
        // Transfers that began before another one on that bus had ended.
        unsigned overlaps = 0;
        bool operator==(const Counts&) const = default;
    };

    explicit FakeI2C(runtime::Clock& clock) : clock_(clock) {}

    void addBus(Bus bus) {
        change([&] { buses_[bus]; });
    }
    void removeBus(Bus bus) {
        change([&] { buses_.erase(bus); });
    }
    // All that is on the bus, at another number.
    void renumber(Bus from, Bus to) {
        change([&] {
            buses_[to] = buses_.at(from);
            buses_.erase(from);
        });
    }

    // Each adds the bus too.
    void put(Bus bus, std::uint8_t address, Device device) {
        change([&] { buses_[bus].devices[address] = std::move(device); });
    }
    void take(Bus bus, std::uint8_t address) {
        change([&] { buses_[bus].devices.erase(address); });
    }
    // DDC/CI with a monitor, which outlives this.
    void putMonitor(Bus bus, simulated::SimulatedMonitor& monitor) {
        put(bus, 0x37,
            {[&monitor](std::span<const std::uint8_t> bytes) {
                 if (bytes.empty()) return ENXIO;
                 return monitor.write(0x37, bytes.front(), bytes.subspan(1)) == 0 ? 0 : ENXIO;
             },
             [&monitor](std::span<std::uint8_t> bytes) {
                 return monitor.read(0x37, bytes) == 0 ? 0 : ENXIO;
             }});
    }
    // A memory of 256 bytes: a write says where the next read begins.
    void putEDID(Bus bus, std::vector<std::uint8_t> edid) {
        const auto place = std::make_shared<std::size_t>(0);
        edid.resize(256);
        put(bus, 0x50,
            {[place](std::span<const std::uint8_t> bytes) {
                 if (!bytes.empty()) *place = bytes.front();
                 return 0;
             },
             [place, edid = std::move(edid)](std::span<std::uint8_t> bytes) {
                 for (std::uint8_t& byte : bytes) byte = edid[(*place)++ % edid.size()];
                 return 0;
             }});
    }

    // What every transfer on the bus fails with from now on; 0: none does.
    void fail(Bus bus, int error) {
        change([&] { buses_[bus].error = error; });
    }
    // How long every transfer on the bus takes that begins from now on.
    void delay(Bus bus, runtime::MonotonicClock::duration delay) {
        change([&] { buses_[bus].delay = delay; });
    }

    Counts counts(Bus bus) const {
        const std::lock_guard lock(mutex_);
        const auto found = counts_.find(bus);
        return found == counts_.end() ? Counts() : found->second;
    }
    // On all buses.
    unsigned transfers() const {
        const std::lock_guard lock(mutex_);
        unsigned sum = 0;
        for (const auto& [bus, counts] : counts_) sum += counts.writes + counts.reads;
        return sum;
    }

    int write(Bus bus, std::uint8_t address, std::span<const std::uint8_t> bytes) override {
        return transfer(bus, address, &Counts::writes,
                        [bytes](const Device& device) { return device.write ? device.write(bytes) : EIO; });
    }
    int read(Bus bus, std::uint8_t address, std::span<std::uint8_t> bytes) override {
        return transfer(bus, address, &Counts::reads,
                        [bytes](const Device& device) { return device.read ? device.read(bytes) : EIO; });
    }

  private:
    struct Line {
        std::map<std::uint8_t, Device> devices;
        int error = 0;
        runtime::MonotonicClock::duration delay{0};
    };

    template <class Change>
    void change(const Change& change) {
        const std::lock_guard lock(mutex_);
        change();
    }

    template <class Message>
    int transfer(Bus bus, std::uint8_t address, unsigned Counts::*count, const Message& message) {
        Line line;
        {
            const std::lock_guard lock(mutex_);
            ++(counts_[bus].*count);
            if (under_[bus]++ > 0) ++counts_[bus].overlaps;
            const auto found = buses_.find(bus);
            line = found != buses_.end() ? found->second : Line{{}, ENOENT, {}};
        }
        // Without the lock: others go on.
        if (line.delay > line.delay.zero()) clock_.sleepFor(line.delay);
        const auto device = line.devices.find(address);
        int error = line.error;
        if (error == 0) error = device != line.devices.end() ? message(device->second) : ENXIO;
        change([&] { --under_[bus]; });
        return error;
    }

    runtime::Clock& clock_;
    mutable std::mutex mutex_;
    std::map<Bus, Line> buses_;
    std::map<Bus, Counts> counts_;
    std::map<Bus, unsigned> under_;
};

}  // namespace vantrel::linux
