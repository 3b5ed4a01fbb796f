#include "linux/kernel/EmulatedBus.h"

#include <cerrno>
#include <linux/i2c.h>

#include "platform/simulated/Frame.h"
#include "platform/simulated/Status.h"
#include "runtime/Fatal.h"

namespace vantrel::test {
namespace {

using simulated::displayChip;
using Direction = EmulatedBus::Message::Direction;

int errorOf(std::int32_t status) {
    if (status == simulated::Status::success) return 0;
    return status == simulated::Status::notResponding ? -ENXIO : -EIO;
}

}  // namespace

EmulatedBus::EmulatedBus(runtime::Clock& clock, BusClock::BusTime busTime, const simulated::DisplayPlan& plan,
                         const simulated::Random& random)
    : clock_(clock, busTime), edid_(emulatedEDID(plan)) {
    if (plan.monitor) monitor_.emplace(*plan.monitor, random, clock_);
}

simulated::SimulatedMonitor& EmulatedBus::monitor() {
    runtime::require(monitor_.has_value(), "a bus without a monitor was asked for one");
    return *monitor_;
}

EmulatedBus::Counters EmulatedBus::counters() const {
    const std::lock_guard lock(mutex_);
    return counters_;
}

void EmulatedBus::setPluggedIn(bool isPluggedIn) {
    const std::lock_guard lock(mutex_);
    isPluggedIn_ = isPluggedIn;
}

void EmulatedBus::failNext(unsigned transfers, int error) {
    const std::lock_guard lock(mutex_);
    failures_ = transfers;
    error_ = error;
}

void EmulatedBus::claim(std::uint16_t address) {
    const std::lock_guard lock(mutex_);
    claimed_.insert(address);
}

void EmulatedBus::release(std::uint16_t address) {
    const std::lock_guard lock(mutex_);
    claimed_.erase(address);
}

void EmulatedBus::setLatency(runtime::MonotonicClock::duration latency) {
    const std::lock_guard lock(mutex_);
    latency_ = latency;
}

unsigned long EmulatedBus::functions() const {
    return kind_ == Kind::i2c ? I2C_FUNC_I2C : I2C_FUNC_SMBUS_BYTE_DATA | I2C_FUNC_SMBUS_WORD_DATA;
}

bool EmulatedBus::isClaimed(std::uint16_t address) const {
    const std::lock_guard lock(mutex_);
    return claimed_.contains(address);
}

int EmulatedBus::transfer(std::span<const Message> messages) {
    int result = static_cast<int>(messages.size());
    runtime::MonotonicClock::duration latency{0};
    {
        const std::lock_guard lock(mutex_);
        ++counters_.transfers;
        for (const Message& message : messages) {
            ++(message.direction == Direction::write ? counters_.writes : counters_.reads)[message.address];
        }
        latency = latency_;
        if (kind_ == Kind::smbus) {
            result = -EOPNOTSUPP;
        } else if (failures_ > 0) {
            --failures_;
            result = -error_;
        } else if (!isPluggedIn_) {
            result = -ENXIO;
        }
    }
    clock_.sleepFor(latency);
    for (std::size_t index = 0; index < messages.size() && result >= 0; ++index) {
        const int error = transfer(messages[index]);
        if (error < 0) result = error;
    }
    const std::lock_guard lock(mutex_);
    if (result < 0) ++counters_.failures;
    return result;
}

int EmulatedBus::transfer(const Message& message) {
    if (message.address == displayChip && monitor_) return askMonitor(message);
    if (message.address == edidChip && edid_) return askEDID(message);
    return -ENXIO;
}

int EmulatedBus::askMonitor(const Message& message) {
    if (message.direction == Direction::read) return errorOf(monitor_->read(displayChip, message.bytes));
    // The first byte of a message is who it is from.
    if (message.bytes.empty()) return errorOf(monitor_->write(displayChip, 0, {}));
    return errorOf(monitor_->write(displayChip, message.bytes.front(), message.bytes.subspan(1)));
}

int EmulatedBus::askEDID(const Message& message) {
    if (monitor_ && !monitor_->isOnBus(clock_.now())) return -ENXIO;
    const std::lock_guard lock(mutex_);
    if (message.direction == Direction::write) {
        if (!message.bytes.empty()) edidOffset_ = message.bytes.front();
        return 0;
    }
    // A memory of 256 bytes, whose second half is blank.
    for (std::uint8_t& byte : message.bytes) {
        byte = edidOffset_ < edid_->size() ? edid_->at(edidOffset_) : std::uint8_t{0xFF};
        ++edidOffset_;
    }
    return 0;
}

}  // namespace vantrel::test
