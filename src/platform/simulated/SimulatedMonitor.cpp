#include "platform/simulated/SimulatedMonitor.h"

#include <algorithm>
#include <utility>

#include "platform/simulated/Status.h"

namespace vantrel::simulated {
namespace {

using runtime::MonotonicTime;

// Streams of a monitor's own randomness.
constexpr std::uint64_t busStream = 0;
constexpr std::uint64_t firmwareStream = 1;

// The standard's code for "Input Select".
constexpr std::uint8_t inputSelect = 0x60;

}  // namespace

// Occupies the bus for one transfer.
class SimulatedMonitor::Transfer {
  public:
    // For as long as it was recorded, if it was.
    Transfer(SimulatedMonitor& monitor, std::size_t bytes, const platform::Transfer* recorded)
        : monitor_(monitor) {
        const bool overlaps = monitor_.transfers_.fetch_add(1) > 0;
        Duration busy{0};
        {
            const std::lock_guard lock(monitor_.mutex_);
            if (overlaps) ++monitor_.counters_.overlaps;
            busy = recorded != nullptr ? recorded->took
                                       : monitor_.manner_.byteTime * static_cast<Duration::rep>(bytes);
        }
        if (busy > Duration::zero()) monitor_.clock_.sleepFor(busy);
    }
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;
    ~Transfer() { monitor_.transfers_.fetch_sub(1); }

  private:
    SimulatedMonitor& monitor_;
};

SimulatedMonitor::SimulatedMonitor(const MonitorPlan& plan, const Random& random, runtime::Clock& clock)
    : clock_(clock),
      start_(clock.now()),
      random_(random.fork(busStream)),
      firmware_(plan, random.fork(firmwareStream), counters_),
      manner_{plan.personality.byteTime, plan.personality.dead, Occasions(plan.personality.nak),
              plan.personality.nakDuring, plan.personality.staleAfterReconfiguration},
      tape_(plan.recording) {}

std::int32_t SimulatedMonitor::write(std::uint32_t chip, std::uint32_t source,
                                     std::span<const std::uint8_t> bytes) {
    const platform::Transfer* recorded = nullptr;
    {
        const std::lock_guard lock(mutex_);
        if (power_ == Power::on) recorded = tape_.write(chip, source, bytes);
    }
    const Transfer transfer(*this, bytes.size(), recorded);
    std::unique_lock lock(mutex_);
    const MonotonicTime now = clock_.now();
    ++counters_.writes;
    MonitorFirmware::Received received{false, std::nullopt};
    if (acknowledges(chip, now)) received = firmware_.receive(source, bytes, now);
    std::int32_t status = received.isAcknowledged ? Status::success : Status::notResponding;
    if (recorded != nullptr) status = recorded->status;
    if (status != Status::success) ++counters_.notAcknowledged;
    record({now, WireRecord::Direction::write, Bytes(bytes.begin(), bytes.end()), status});
    lock.unlock();
    if (received.pulse && pulseListener_) pulseListener_(*received.pulse);
    return status;
}

std::int32_t SimulatedMonitor::read(std::uint32_t chip, std::span<std::uint8_t> bytes) {
    const platform::Transfer* recorded = nullptr;
    {
        const std::lock_guard lock(mutex_);
        if (power_ == Power::on) recorded = tape_.read(chip, bytes.size());
    }
    const Transfer transfer(*this, bytes.size(), recorded);
    const std::lock_guard lock(mutex_);
    const MonotonicTime now = clock_.now();
    ++counters_.reads;
    std::int32_t status = acknowledges(chip, now) ? Status::success : Status::notResponding;
    // Without a byte on the bus nothing is taken from the monitor.
    if (status == Status::success && !bytes.empty()) {
        const Reply own = firmware_.takeReply(now);
        if (recorded == nullptr) own.copyTo(bytes);
    }
    if (recorded != nullptr) {
        status = recorded->status;
        std::copy(recorded->bytes.begin(), recorded->bytes.end(), bytes.begin());
    }
    const bool isSuccess = status == Status::success;
    if (!isSuccess) ++counters_.notAcknowledged;
    record(
        {now, WireRecord::Direction::read, isSuccess ? Bytes(bytes.begin(), bytes.end()) : Bytes(), status});
    return status;
}

bool SimulatedMonitor::acknowledges(std::uint32_t chip, MonotonicTime now) {
    if (chip != displayChip) return false;
    if (power_ == Power::off || manner_.isDead || !firmware_.isOnBus(now)) {
        firmware_.forgetReply();
        return false;
    }
    const auto isIn = [this, now](const Span& span) {
        return now >= start_ + span.from && now < start_ + span.from + span.length;
    };
    const bool isInSpan = std::any_of(manner_.nakDuring.begin(), manner_.nakDuring.end(), isIn);
    return !manner_.naks.next(random_) && !isInSpan;
}

void SimulatedMonitor::setPower(Power power) {
    const std::lock_guard lock(mutex_);
    power_ = power;
    firmware_.forgetReply();
}

void SimulatedMonitor::wake() {
    const std::lock_guard lock(mutex_);
    firmware_.wake(clock_.now());
}

void SimulatedMonitor::pressInputButton(std::uint16_t input) {
    std::optional<Pulse> pulse;
    {
        const std::lock_guard lock(mutex_);
        tape_.changed(inputSelect);
        pulse = firmware_.pressInputButton(input, clock_.now());
    }
    if (pulse && pulseListener_) pulseListener_(*pulse);
}

void SimulatedMonitor::adjust(std::uint8_t code, std::uint16_t value) {
    const std::lock_guard lock(mutex_);
    tape_.changed(code);
    firmware_.adjust(code, value);
}

void SimulatedMonitor::becomeHealthy() {
    const std::lock_guard lock(mutex_);
    manner_ = BusManner();
    tape_.stop();
    firmware_.becomeHealthy(clock_.now());
}

void SimulatedMonitor::onPulse(PulseListener listener) { pulseListener_ = std::move(listener); }

std::optional<std::uint16_t> SimulatedMonitor::value(std::uint8_t code) const {
    const std::lock_guard lock(mutex_);
    const std::optional<VCPReading> reading = firmware_.reading(code, clock_.now());
    if (!reading) return std::nullopt;
    return reading->current;
}

std::optional<std::uint16_t> SimulatedMonitor::shownInput() const {
    const std::lock_guard lock(mutex_);
    return firmware_.shownInput(clock_.now());
}

bool SimulatedMonitor::isOnBus(MonotonicTime now) const {
    const std::lock_guard lock(mutex_);
    return firmware_.isOnBus(now);
}

bool SimulatedMonitor::handlesGoStale() const {
    const std::lock_guard lock(mutex_);
    return manner_.handlesGoStale;
}

MonitorCounters SimulatedMonitor::counters() const {
    const std::lock_guard lock(mutex_);
    return counters_;
}

void SimulatedMonitor::recordTrace() {
    const std::lock_guard lock(mutex_);
    isTracing_ = true;
}

std::vector<WireRecord> SimulatedMonitor::trace() const {
    const std::lock_guard lock(mutex_);
    return trace_;
}

void SimulatedMonitor::record(const WireRecord& record) {
    if (isTracing_) trace_.push_back(record);
}

}  // namespace vantrel::simulated
