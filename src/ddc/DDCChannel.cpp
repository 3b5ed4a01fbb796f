#include "ddc/DDCChannel.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include "ddc/CapabilitiesText.h"
#include "ddc/DDCFrame.h"
#include "platform/PrivateAPI.h"
#include "runtime/Fatal.h"
#include "text/Hex.h"

namespace vantrel::ddc {

using namespace std::chrono_literals;
using platform::LogLevel;

namespace {

// Between two writes of the same packet.
constexpr auto repeatPause = 10ms;
// DDC/CI gives a monitor 40 ms to prepare a reply and 50 ms to take a new value.
constexpr auto replyPause = 50ms;
constexpr auto readRetryPause = 30ms;
constexpr auto fragmentRetryPause = 40ms;
// A handle that was just replaced and still fails is not the handle's fault.
constexpr auto reconnectInterval = 2s;

// Some monitors miss the first request after a silence.
constexpr int vcpRepeats = 2;
constexpr int capabilitiesRepeats = 1;
constexpr int fragmentAttempts = 5;
// No further fragment is asked for from here on.
constexpr int capabilitiesLimit = 8192;

std::string vcp(std::uint8_t code) { return "0x" + text::upperHex(code); }

}  // namespace

DDCChannel::DDCChannel(Transport transport, AVServiceLocator::Entry entry, std::string label)
    : transport_(transport),
      service_(std::move(entry.service)),
      edidUUID_(std::move(entry.edidUUID)),
      serial_(entry.serial),
      label_(std::move(label)) {}

DDCChannel::ReadResult DDCChannel::read(std::uint8_t code, int attempts) {
    runtime::require(attempts >= 0, "a negative number of read attempts");
    std::string reason = "no attempt";
    for (int attempt = 1; attempt <= attempts; ++attempt) {
        if (attempt > 1) transport_.clock.sleepFor(readRetryPause);
        const std::optional<Bytes> reply = requestReading(code, reason);
        if (!reply) continue;
        if (isUnsupported(*reply)) {
            log(LogLevel::debug, " read " + vcp(code) + ": unsupported");
            return ReadResult::unsupported();
        }
        const VCPReading reading = readingOf(*reply);
        log(LogLevel::debug, " read " + vcp(code) + " = " + std::to_string(reading.current) + " (max " +
                                 std::to_string(reading.maximum) + "), attempt " + std::to_string(attempt));
        return ReadResult::value(reading);
    }
    log(LogLevel::error,
        " read " + vcp(code) + " failed after " + std::to_string(attempts) + " attempts: " + reason);
    return ReadResult::failed();
}

std::optional<DDCChannel::Bytes> DDCChannel::requestReading(std::uint8_t code, std::string& reason) {
    if (!send(std::array{getVCPFeature, code}, vcpRepeats)) {
        reason = "request write failed";
        return std::nullopt;
    }
    transport_.clock.sleepFor(replyPause);
    std::optional<Bytes> reply = platform::PrivateAPI::readI2C(
        transport_.functions, transport_.log, service_, displayChipAddress, replyOffset, readingReplySize);
    if (!reply) {
        reason = "reply read failed";
        return std::nullopt;
    }
    if (!isValidReading(*reply, code)) {
        reason = "invalid reply " + text::hexBytes(*reply);
        return std::nullopt;
    }
    return reply;
}

bool DDCChannel::write(std::uint8_t code, std::uint16_t value) {
    const auto high = static_cast<std::uint8_t>(value >> 8);
    const auto low = static_cast<std::uint8_t>(value & 0xFF);
    const bool sent = send(std::array{setVCPFeature, code, high, low}, vcpRepeats);
    transport_.clock.sleepFor(replyPause);
    const std::string what = " write " + vcp(code) + " = " + std::to_string(value);
    if (sent) {
        log(LogLevel::standard, what + " (0x" + text::upperHex(value) + ")");
    } else {
        log(LogLevel::error, what + " failed");
    }
    return sent;
}

std::optional<std::string> DDCChannel::capabilities() {
    std::optional<std::string> capabilities = fetchCapabilities();
    if (capabilities) {
        log(LogLevel::standard, " capabilities: " + *capabilities);
    } else {
        log(LogLevel::error, " capabilities unavailable");
    }
    return capabilities;
}

// A string that breaks off is kept as far as it came: most of a monitor's
// controls are better than none.
std::optional<std::string> DDCChannel::fetchCapabilities() {
    std::string bytes;
    for (int offset = 0; offset < capabilitiesLimit;) {
        const std::optional<Bytes> fragment = capabilityFragment(offset);
        if (!fragment || fragment->empty()) break;
        bytes.append(fragment->begin(), fragment->end());
        offset += static_cast<int>(fragment->size());
    }
    std::string capabilities = capabilitiesText(bytes);
    if (capabilities.empty()) return std::nullopt;
    return capabilities;
}

std::optional<DDCChannel::Bytes> DDCChannel::capabilityFragment(int offset) {
    runtime::require(offset >= 0 && offset <= 0xFFFF, "a capabilities offset of more than 16 bits");
    for (int attempt = 1; attempt <= fragmentAttempts; ++attempt) {
        if (attempt > 1) transport_.clock.sleepFor(fragmentRetryPause);
        if (std::optional<Bytes> fragment = requestFragment(static_cast<std::uint16_t>(offset)))
            return fragment;
    }
    return std::nullopt;
}

std::optional<DDCChannel::Bytes> DDCChannel::requestFragment(std::uint16_t offset) {
    const auto high = static_cast<std::uint8_t>(offset >> 8);
    const auto low = static_cast<std::uint8_t>(offset & 0xFF);
    if (!send(std::array{capabilitiesRequest, high, low}, capabilitiesRepeats)) return std::nullopt;
    transport_.clock.sleepFor(replyPause);
    const std::optional<Bytes> reply = platform::PrivateAPI::readI2C(
        transport_.functions, transport_.log, service_, displayChipAddress, replyOffset, fragmentReplySize);
    return reply ? fragmentOf(*reply, offset) : std::nullopt;
}

bool DDCChannel::send(std::span<const std::uint8_t> payload, int repeats) {
    const Bytes packet = requestPacket(payload);
    if (transmit(packet, repeats)) return true;
    return reconnect() && transmit(packet, repeats);
}

// The packet goes out every time, whether the one before arrived or not.
bool DDCChannel::transmit(std::span<const std::uint8_t> packet, int repeats) {
    runtime::require(repeats >= 0, "a negative number of writes");
    bool arrived = false;
    for (int i = 0; i < repeats; ++i) {
        if (i > 0) transport_.clock.sleepFor(repeatPause);
        if (platform::PrivateAPI::writeI2C(transport_.functions, transport_.log, service_, displayChipAddress,
                                           hostSourceAddress, packet)) {
            arrived = true;
        }
    }
    return arrived;
}

bool DDCChannel::reconnect() {
    const runtime::MonotonicTime now = transport_.clock.now();
    if (lastReconnect_ && now - *lastReconnect_ <= reconnectInterval) return false;
    lastReconnect_ = now;
    const auto entries = AVServiceLocator::externalServices(transport_.registry, transport_.functions);
    auto fresh = std::find_if(entries.begin(), entries.end(), [this](const AVServiceLocator::Entry& entry) {
        return entry.edidUUID == edidUUID_ && entry.serial == serial_;
    });
    // With one monitor there is nothing to confuse it with.
    if (fresh == entries.end() && entries.size() == 1) fresh = entries.begin();
    if (fresh == entries.end()) {
        log(LogLevel::error, ": DDC failed and no matching AV service to reconnect to (" +
                                 std::to_string(entries.size()) + " external)");
        return false;
    }
    service_ = fresh->service;
    log(LogLevel::standard, ": reconnected to a fresh AV service handle");
    return true;
}

void DDCChannel::log(LogLevel level, const std::string& message) const {
    transport_.log.write(platform::Log::ddc, level, label_ + message);
}

std::string describe(const DDCChannel::ReadResult& result) {
    switch (result.kind) {
        case DDCChannel::ReadResult::Kind::value:
            return "value(current: " + std::to_string(result.reading.current) +
                   ", maximum: " + std::to_string(result.reading.maximum) + ")";
        case DDCChannel::ReadResult::Kind::unsupported:
            return "unsupported";
        case DDCChannel::ReadResult::Kind::failed:
            return "failed";
    }
    runtime::fatal("a read result of no kind");
}

}  // namespace vantrel::ddc
