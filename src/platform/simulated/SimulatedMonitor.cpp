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

}  // namespace

// Occupies the bus for one transfer.
class SimulatedMonitor::Transfer {
  public:
    Transfer(SimulatedMonitor& monitor, std::size_t bytes) : monitor_(monitor) {
        const bool overlaps = monitor_.transfers_.fetch_add(1) > 0;
        Duration busy{0};
        {
            const std::lock_guard lock(monitor_.mutex_);
            if (overlaps) ++monitor_.counters_.overlaps;
            busy = monitor_.manner_.byteTime * static_cast<Duration::rep>(bytes);
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
              plan.personality.nakDuring, plan.personality.staleAfterReconfiguration} {}

std::int32_t SimulatedMonitor::write(std::uint32_t chip, std::uint32_t source,
                                     std::span<const std::uint8_t> bytes) {
    const Transfer transfer(*this, bytes.size());
    std::unique_lock lock(mutex_);
    const MonotonicTime now = clock_.now();
    ++counters_.writes;
    MonitorFirmware::Received received{false, std::nullopt};
    if (acknowledges(chip, now)) received = firmware_.receive(source, bytes, now);
    if (!received.isAcknowledged) ++counters_.notAcknowledged;
    const std::int32_t status = received.isAcknowledged ? Status::success : Status::notResponding;
    record({now, WireRecord::Direction::write, Bytes(bytes.begin(), bytes.end()), status});
    lock.unlock();
    if (received.pulse && pulseListener_) pulseListener_(*received.pulse);
    return status;
}

std::int32_t SimulatedMonitor::read(std::uint32_t chip, std::span<std::uint8_t> bytes) {
    const Transfer transfer(*this, bytes.size());
    const std::lock_guard lock(mutex_);
    const MonotonicTime now = clock_.now();
    ++counters_.reads;
    if (!acknowledges(chip, now)) {
        ++counters_.notAcknowledged;
        record({now, WireRecord::Direction::read, {}, Status::notResponding});
        return Status::notResponding;
    }
    // Without a byte on the bus nothing is taken from the monitor.
    if (!bytes.empty()) firmware_.takeReply(now).copyTo(bytes);
    record({now, WireRecord::Direction::read, Bytes(bytes.begin(), bytes.end()), Status::success});
    return Status::success;
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
        pulse = firmware_.pressInputButton(input, clock_.now());
    }
    if (pulse && pulseListener_) pulseListener_(*pulse);
}

void SimulatedMonitor::adjust(std::uint8_t code, std::uint16_t value) {
    const std::lock_guard lock(mutex_);
    firmware_.adjust(code, value);
}

void SimulatedMonitor::becomeHealthy() {
    const std::lock_guard lock(mutex_);
    manner_ = BusManner();
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
