// An I2C bus with what answers on it: a monitor at 0x37 and its EDID at 0x50, or nothing
// at all. Results are those of the kernel's functions, with -errno for an error.
//
// A bus takes transfers at any time and knows no callers; that is its node's business.
// Threads: any; transfers one at a time, as its node sees to.
// Time: a transfer takes the time of the bus's own clock.
#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <span>

#include "linux/kernel/BusClock.h"
#include "linux/kernel/EmulatedEDID.h"
#include "platform/simulated/SimulatedMonitor.h"

namespace vantrel::test {

class EmulatedBus {
  public:
    static constexpr std::uint16_t edidChip = 0x50;
    // Addresses have seven bits.
    static constexpr std::uint16_t lastAddress = 0x7F;

    // What the controller can do: whole messages of I2C, or only SMBus's transactions,
    // which DDC/CI isn't made of.
    enum class Kind { i2c, smbus };

    struct Message {
        enum class Direction { write, read };
        std::uint16_t address = 0;
        Direction direction = Direction::write;
        std::span<std::uint8_t> bytes;
    };
    // What is or was on the bus, whether it worked or not.
    struct Counters {
        std::uint64_t transfers = 0;
        std::uint64_t failures = 0;
        // Messages by address.
        std::map<std::uint16_t, std::uint64_t> writes;
        std::map<std::uint16_t, std::uint64_t> reads;
        bool operator==(const Counters&) const = default;
    };

    // Nobody answers. The clock must outlive it.
    EmulatedBus(runtime::Clock& clock, BusClock::BusTime busTime, Kind kind)
        : clock_(clock, busTime), kind_(kind) {}
    // A display; without a monitor it has an EDID only.
    EmulatedBus(runtime::Clock& clock, BusClock::BusTime busTime, const simulated::DisplayPlan& plan,
                const simulated::Random& random);

    // As I2C_FUNCS tells.
    unsigned long functions() const;
    // Whether another driver has taken the address.
    bool isClaimed(std::uint16_t address) const;
    // How many messages there were.
    int transfer(std::span<const Message> messages);

    // Stops the program without a monitor.
    simulated::SimulatedMonitor& monitor();
    const simulated::SimulatedMonitor* findMonitor() const { return monitor_ ? &*monitor_ : nullptr; }
    // Empty without a display.
    const std::optional<EDIDBlock>& edid() const { return edid_; }
    const BusClock& clock() const { return clock_; }
    Counters counters() const;

    // What happens to it.
    void setPluggedIn(bool isPluggedIn);
    // The next so many transfers fail, and the monitor sees nothing of them.
    void failNext(unsigned transfers, int error);
    // Another driver takes the address.
    void claim(std::uint16_t address);
    void release(std::uint16_t address);
    // Every transfer takes so much longer.
    void setLatency(runtime::MonotonicClock::duration latency);

  private:
    int transfer(const Message& message);
    int askMonitor(const Message& message);
    int askEDID(const Message& message);

    BusClock clock_;
    const Kind kind_ = Kind::i2c;
    std::optional<simulated::SimulatedMonitor> monitor_;
    std::optional<EDIDBlock> edid_;

    mutable std::mutex mutex_;
    Counters counters_;
    bool isPluggedIn_ = true;
    unsigned failures_ = 0;
    int error_ = 0;
    std::set<std::uint16_t> claimed_;
    runtime::MonotonicClock::duration latency_{0};
    // Where the next read of the EDID begins.
    std::uint8_t edidOffset_ = 0;
};

}  // namespace vantrel::test
