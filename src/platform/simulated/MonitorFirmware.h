// What a monitor does with the messages that reach it: the part of a simulated
// monitor behind its bus.
//
// While it is silent (switching, showing another input, deaf after wake) it obeys
// nothing and gives null messages. A new request takes the place of a reply that
// nobody read.
//
// Threads: one at a time. Time: passed in, never going back.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "platform/simulated/CapabilitiesServer.h"
#include "platform/simulated/Desk.h"
#include "platform/simulated/InputSelector.h"
#include "platform/simulated/MonitorLog.h"
#include "platform/simulated/Random.h"
#include "platform/simulated/VCPReplier.h"
#include "platform/simulated/VCPTable.h"
#include "platform/simulated/WriteFilter.h"

namespace vantrel::simulated {

class MonitorFirmware {
  public:
    struct Received {
        bool isAcknowledged = true;
        // What the message has brought about.
        std::optional<Pulse> pulse;
    };

    // Counts what it received and answered in `counters`, which must outlive it.
    MonitorFirmware(const MonitorPlan& plan, Random random, MonitorCounters& counters);

    Received receive(std::uint32_t source, std::span<const std::uint8_t> written, runtime::MonotonicTime now);
    // What a read delivers now; a reply is taken by being read.
    Reply takeReply(runtime::MonotonicTime now);
    void forgetReply() { pending_.reset(); }

    void wake(runtime::MonotonicTime now);
    std::optional<Pulse> pressInputButton(std::uint16_t input, runtime::MonotonicTime now);
    void adjust(std::uint8_t code, std::uint16_t value) { table_.adjust(code, value); }
    void becomeHealthy(runtime::MonotonicTime now);

    std::optional<VCPReading> reading(std::uint8_t code, runtime::MonotonicTime now) const;
    std::optional<std::uint16_t> shownInput(runtime::MonotonicTime now) const;
    bool isOnBus(runtime::MonotonicTime now) const { return !inputs_ || inputs_->isOnBus(now); }

  private:
    // A reply that waits to be read: to a Get VCP request, or the fragment at an offset.
    struct Pending {
        Bytes request;
        std::optional<VCPReplier::Question> question;
        std::uint16_t offset = 0;
        runtime::MonotonicTime ready;
    };

    bool isSilent(runtime::MonotonicTime now) const;
    bool get(std::uint8_t code, Bytes request, runtime::MonotonicTime now);
    std::optional<Pulse> set(std::uint8_t code, std::uint16_t value, runtime::MonotonicTime now);
    void expect(Pending pending, Duration latency, runtime::MonotonicTime now);

    Personality personality_;
    Random random_;
    MonitorCounters& counters_;
    VCPTable table_;
    std::optional<InputSelector> inputs_;
    WriteFilter filter_;
    VCPReplier replier_;
    CapabilitiesServer capabilities_;
    std::optional<Pending> pending_;
    std::optional<runtime::MonotonicTime> deafUntil_;
};

}  // namespace vantrel::simulated
