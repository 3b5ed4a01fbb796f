// What a simulated monitor saw on its bus, for tests and for curious people.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/simulated/Frame.h"
#include "runtime/Time.h"

namespace vantrel::simulated {

struct WireRecord {
    enum class Direction { write, read };
    runtime::MonotonicTime time;
    Direction direction = Direction::write;
    // As written, or as read when the status is success.
    Bytes bytes;
    std::int32_t status = 0;
    bool operator==(const WireRecord&) const = default;
};

struct MonitorCounters {
    std::uint64_t writes = 0;
    std::uint64_t reads = 0;
    std::uint64_t notAcknowledged = 0;
    // Acknowledged but without effect: malformed, wrong checksum, monitor silent.
    std::uint64_t ignored = 0;
    std::uint64_t getRequests = 0;
    std::uint64_t setRequests = 0;
    std::uint64_t capabilitiesRequests = 0;
    // Replies that were read, null messages not counted.
    std::uint64_t replies = 0;
    // Transfers that began before another one of this monitor had ended: a bus
    // can't do that, so whoever drives it must see that it stays 0.
    std::uint64_t overlaps = 0;
    bool operator==(const MonitorCounters&) const = default;
};

}  // namespace vantrel::simulated
