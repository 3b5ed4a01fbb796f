#include "platform/simulated/SimulatedMonitor.h"

#include <algorithm>
#include <utility>

#include "platform/simulated/Status.h"

namespace vantrel::simulated {
namespace {

using runtime::MonotonicTime;

// The standard's code for "Input Select".
constexpr std::uint8_t inputSelect = 0x60;

// Payload lengths of the requests, command byte included.
constexpr std::size_t getLength = 2;
constexpr std::size_t setLength = 4;
constexpr std::size_t capabilitiesLength = 3;

std::uint16_t word(std::uint8_t high, std::uint8_t low) {
    return static_cast<std::uint16_t>(high << 8 | low);
}

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
            busy = monitor_.personality_.byteTime * static_cast<Duration::rep>(bytes);
        }
        if (busy > Duration::zero()) monitor_.clock_.sleepFor(busy);
    }
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;
    ~Transfer() { monitor_.transfers_.fetch_sub(1); }

  private:
    SimulatedMonitor& monitor_;
};

SimulatedMonitor::SimulatedMonitor(const MonitorPlan& plan, Random random, runtime::Clock& clock)
    : clock_(clock),
      start_(clock.now()),
      personality_(plan.personality),
      random_(random),
      naks_(plan.personality.nak),
      table_(plan.features, plan.personality.writesRevertAfter),
      filter_(plan.personality),
      replier_(plan.personality),
      capabilities_(plan.capabilities, plan.personality) {
    if (plan.inputs) inputs_.emplace(*plan.inputs, plan.personality);
}

std::int32_t SimulatedMonitor::write(std::uint32_t chip, std::uint32_t source,
                                     std::span<const std::uint8_t> bytes) {
    const Transfer transfer(*this, bytes.size());
    std::unique_lock lock(mutex_);
    const MonotonicTime now = clock_.now();
    std::int32_t status = Status::success;
    ++counters_.writes;
    if (!acknowledges(chip, now)) {
        status = Status::notResponding;
    } else {
        const std::optional<Request> request = parseRequest(source, bytes);
        const bool isSound = request && (request->hasRightChecksum || !personality_.ignoresWrongChecksums);
        if (isSound && !isSilent(now)) {
            status = receive(Bytes(bytes.begin(), bytes.end()), *request, now);
        } else {
            ++counters_.ignored;
        }
    }
    if (isTracing_) {
        record({now, WireRecord::Direction::write, Bytes(bytes.begin(), bytes.end()), status});
    }
    const std::optional<Pulse> pulse = std::exchange(newPulse_, std::nullopt);
    lock.unlock();
    if (pulse && pulseListener_) pulseListener_(*pulse);
    return status;
}

std::int32_t SimulatedMonitor::read(std::uint32_t chip, std::span<std::uint8_t> bytes) {
    const Transfer transfer(*this, bytes.size());
    const std::lock_guard lock(mutex_);
    const MonotonicTime now = clock_.now();
    std::int32_t status = Status::notResponding;
    ++counters_.reads;
    if (acknowledges(chip, now)) {
        status = Status::success;
        // Without a byte on the bus nothing is taken from the monitor.
        if (!bytes.empty()) takeReply(now).copyTo(bytes);
    }
    if (isTracing_) {
        const std::span<std::uint8_t> seen = status == Status::success ? bytes : bytes.first(0);
        record({now, WireRecord::Direction::read, Bytes(seen.begin(), seen.end()), status});
    }
    return status;
}

bool SimulatedMonitor::acknowledges(std::uint32_t chip, MonotonicTime now) {
    const auto isIn = [this, now](const Span& span) {
        return now >= start_ + span.from && now < start_ + span.from + span.length;
    };
    const auto& spans = personality_.nakDuring;
    const bool isThere = chip == displayChip && power_ == Power::on && !personality_.dead &&
                         (!inputs_ || inputs_->isOnBus(now));
    if (!isThere) {
        if (chip == displayChip) pending_.reset();
        ++counters_.notAcknowledged;
        return false;
    }
    if (naks_.next(random_) || std::any_of(spans.begin(), spans.end(), isIn)) {
        ++counters_.notAcknowledged;
        return false;
    }
    return true;
}

bool SimulatedMonitor::isSilent(MonotonicTime now) const {
    return (deafUntil_ && now < *deafUntil_) || (inputs_ && inputs_->isSilent(now));
}

// A new request takes the place of a reply that nobody read.
std::int32_t SimulatedMonitor::receive(const Bytes& frame, const Request& request, MonotonicTime now) {
    const Bytes& payload = request.payload;
    const auto is = [&payload](std::uint8_t command, std::size_t length) {
        return payload[0] == command && payload.size() == length;
    };
    if (is(getVCP, getLength)) return get(payload[1], frame, now);
    if (is(setVCP, setLength)) {
        set(payload[1], word(payload[2], payload[3]), now);
    } else if (is(capabilitiesRequest, capabilitiesLength)) {
        ++counters_.capabilitiesRequests;
        expect({frame, std::nullopt, word(payload[1], payload[2]), {}}, personality_.capabilitiesLatency,
               now);
    } else {
        ++counters_.ignored;
    }
    return Status::success;
}

std::int32_t SimulatedMonitor::get(std::uint8_t code, const Bytes& frame, MonotonicTime now) {
    ++counters_.getRequests;
    filter_.sawGet();
    const VCPReplier::Question question{code, reading(code, now)};
    if (!question.reading && personality_.unsupported == UnsupportedReply::nak) {
        pending_.reset();
        ++counters_.notAcknowledged;
        return Status::notResponding;
    }
    expect({frame, question, 0, {}}, personality_.replyLatency, now);
    return Status::success;
}

void SimulatedMonitor::set(std::uint8_t code, std::uint16_t value, MonotonicTime now) {
    ++counters_.setRequests;
    pending_.reset();
    if (!filter_.takes(code, value, random_)) return;
    if (code == inputSelect && inputs_) {
        if (auto pulse = inputs_->request(value, now, random_)) newPulse_ = pulse;
    } else {
        table_.write(code, value, now);
    }
}

void SimulatedMonitor::expect(Pending pending, Duration latency, MonotonicTime now) {
    const Duration jitter = personality_.latencyJitter;
    pending.ready = now + latency;
    if (jitter > Duration::zero()) pending.ready += random_.duration(Duration::zero(), jitter);
    pending_ = std::move(pending);
}

Reply SimulatedMonitor::takeReply(MonotonicTime now) {
    if (isSilent(now)) {
        pending_.reset();
        return {};
    }
    if (!pending_ || now < pending_->ready) return {};
    const Pending pending = *std::exchange(pending_, std::nullopt);
    ++counters_.replies;
    if (pending.question) return replier_.reply(*pending.question, pending.request, random_);
    return capabilities_.reply(pending.offset, random_);
}

std::optional<VCPReading> SimulatedMonitor::reading(std::uint8_t code, MonotonicTime now) const {
    if (code == inputSelect && inputs_) return VCPReading{0, inputs_->maximum(), inputs_->reading(now)};
    return table_.reading(code, now);
}

void SimulatedMonitor::record(WireRecord record) { trace_.push_back(std::move(record)); }

}  // namespace vantrel::simulated
