#include "platform/simulated/MonitorFirmware.h"

#include <utility>

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

MonitorFirmware::MonitorFirmware(const MonitorPlan& plan, Random random, MonitorCounters& counters)
    : personality_(plan.personality),
      random_(random),
      counters_(counters),
      table_(plan.features, plan.personality.writesRevertAfter),
      filter_(plan.personality),
      replier_(plan.personality),
      capabilities_(plan.capabilities, plan.personality) {
    if (plan.inputs) inputs_.emplace(*plan.inputs, plan.personality);
}

MonitorFirmware::Received MonitorFirmware::receive(std::uint32_t source,
                                                   std::span<const std::uint8_t> written, MonotonicTime now) {
    const std::optional<Request> request = parseRequest(source, written);
    const bool isSound = request && (request->hasRightChecksum || !personality_.ignoresWrongChecksums);
    if (!isSound || isSilent(now)) {
        ++counters_.ignored;
        return {};
    }
    const Bytes& payload = request->payload;
    const auto is = [&payload](std::uint8_t command, std::size_t length) {
        return payload[0] == command && payload.size() == length;
    };
    Bytes bytes(written.begin(), written.end());
    if (is(getVCP, getLength)) return {get(payload[1], std::move(bytes), now), std::nullopt};
    if (is(setVCP, setLength)) return {true, set(payload[1], word(payload[2], payload[3]), now)};
    if (is(capabilitiesRequest, capabilitiesLength)) {
        ++counters_.capabilitiesRequests;
        expect({std::move(bytes), std::nullopt, word(payload[1], payload[2]), {}},
               personality_.capabilitiesLatency, now);
    } else {
        ++counters_.ignored;
    }
    return {};
}

Reply MonitorFirmware::takeReply(MonotonicTime now) {
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

void MonitorFirmware::wake(MonotonicTime now) {
    deafUntil_ = now + personality_.deafAfterWake;
    pending_.reset();
}

std::optional<Pulse> MonitorFirmware::pressInputButton(std::uint16_t input, MonotonicTime now) {
    if (!inputs_) return std::nullopt;
    return inputs_->press(input, now);
}

void MonitorFirmware::becomeHealthy(MonotonicTime now) {
    personality_ = Personality();
    deafUntil_.reset();
    filter_ = WriteFilter(personality_);
    replier_ = VCPReplier(personality_);
    capabilities_.becomeHealthy();
    table_.stopReverting(now);
    if (inputs_) inputs_->becomeHealthy(now);
}

std::optional<VCPReading> MonitorFirmware::reading(std::uint8_t code, MonotonicTime now) const {
    if (code == inputSelect && inputs_) return VCPReading{0, inputs_->maximum(), inputs_->reading(now)};
    return table_.reading(code, now);
}

std::optional<std::uint16_t> MonitorFirmware::shownInput(MonotonicTime now) const {
    if (!inputs_) return std::nullopt;
    return inputs_->shown(now);
}

bool MonitorFirmware::isSilent(MonotonicTime now) const {
    return (deafUntil_ && now < *deafUntil_) || (inputs_ && inputs_->isSilent(now));
}

// False when a code that the monitor does not have is not acknowledged.
bool MonitorFirmware::get(std::uint8_t code, Bytes request, MonotonicTime now) {
    ++counters_.getRequests;
    filter_.sawGet();
    const VCPReplier::Question question{code, reading(code, now)};
    if (!question.reading && personality_.unsupported == UnsupportedReply::nak) {
        pending_.reset();
        return false;
    }
    expect({std::move(request), question, 0, {}}, personality_.replyLatency, now);
    return true;
}

std::optional<Pulse> MonitorFirmware::set(std::uint8_t code, std::uint16_t value, MonotonicTime now) {
    ++counters_.setRequests;
    pending_.reset();
    if (!filter_.takes(code, value, random_)) return std::nullopt;
    if (code == inputSelect && inputs_) return inputs_->request(value, now, random_);
    table_.write(code, value, now);
    return std::nullopt;
}

void MonitorFirmware::expect(Pending pending, Duration latency, MonotonicTime now) {
    const Duration jitter = personality_.latencyJitter;
    pending.ready = now + latency;
    if (jitter > Duration::zero()) pending.ready += random_.duration(Duration::zero(), jitter);
    pending_ = std::move(pending);
}

}  // namespace vantrel::simulated
