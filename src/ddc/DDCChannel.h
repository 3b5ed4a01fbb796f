// Speaks DDC/CI (VESA DDC/CI 1.1) to one external monitor: Get and Set VCP
// Feature, and the capabilities request, with the pauses and retries that real
// monitors need. When the AV service handle has gone stale (after sleep, a cable
// change, a reconfiguration) it finds a fresh one for the same monitor by itself.
//
// Threads: one at a time, without locking; its DDCWorker's queue sees to that.
// Time: every call blocks for its pauses, tens of milliseconds at the least.
// Errors: nothing throws; what failed is in the result and in the log.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "ddc/AVServiceLocator.h"
#include "ddc/Transport.h"
#include "ddc/VCPReading.h"

namespace vantrel::ddc {

class DDCChannel {
  public:
    struct ReadResult {
        enum class Kind {
            value,
            unsupported,  // the monitor says that it does not have this code
            failed,       // no valid answer in any attempt
        };
        Kind kind = Kind::failed;
        VCPReading reading;  // of a value

        static ReadResult value(VCPReading reading) { return {Kind::value, reading}; }
        static ReadResult unsupported() { return {Kind::unsupported, {}}; }
        static ReadResult failed() { return {Kind::failed, {}}; }
        bool operator==(const ReadResult&) const = default;
    };

    // Talks through the entry's service; `label` is the monitor's name and begins
    // every line in the log.
    DDCChannel(Transport transport, AVServiceLocator::Entry entry, std::string label);

    // Get VCP Feature, tried up to `attempts` (0 or more) times.
    ReadResult read(std::uint8_t code, int attempts);

    // Set VCP Feature; true when the request went out. There is no read-back.
    bool write(std::uint8_t code, std::uint16_t value);

    // The whole capabilities string, or as much of it as the monitor sent, as
    // valid UTF-8; nothing when nothing came.
    std::optional<std::string> capabilities();

  private:
    using Bytes = std::vector<std::uint8_t>;

    bool send(std::span<const std::uint8_t> payload, int repeats);
    bool transmit(std::span<const std::uint8_t> packet, int repeats);
    bool reconnect();
    // The reply of one attempt at reading `code`, or why there is none.
    std::optional<Bytes> requestReading(std::uint8_t code, std::string& reason);
    std::optional<std::string> fetchCapabilities();
    std::optional<Bytes> capabilityFragment(int offset);
    std::optional<Bytes> requestFragment(std::uint16_t offset);
    void log(platform::LogLevel level, const std::string& message) const;

    Transport transport_;
    platform::AVService service_;
    std::optional<std::string> edidUUID_;
    std::optional<std::uint32_t> serial_;
    std::string label_;
    // Nothing: long enough ago.
    std::optional<runtime::MonotonicTime> lastReconnect_;
};

// "unsupported", "failed" or "value(current: 50, maximum: 100)".
std::string describe(const DDCChannel::ReadResult& result);

}  // namespace vantrel::ddc
