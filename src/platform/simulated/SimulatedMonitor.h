// A monitor that speaks DDC/CI byte by byte and misbehaves as its Personality says:
// its MonitorFirmware, on a bus.
//
// A transfer that is not acknowledged has a status other than 0. A monitor that
// is silent acknowledges everything, obeys nothing and gives null messages. A monitor
// with a recording hears everything too, but its Tape goes before its own answers.
//
// Threads: any; transfers must not overlap (they are counted when they do).
// Time: a transfer blocks its caller through the clock for as long as the bus is
// busy, without holding a lock. Everything else follows from the time at which it
// is asked for, so that it needs no thread and no main loop.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <span>
#include <vector>

#include "platform/simulated/MonitorFirmware.h"
#include "platform/simulated/Tape.h"
#include "runtime/Clock.h"

namespace vantrel::simulated {

class SimulatedMonitor {
  public:
    // Called on the thread whose request or button causes the pulse, before it starts.
    using PulseListener = std::function<void(const Pulse&)>;
    enum class Power { off, on };

    // Its spans of time count from now. The clock must outlive it.
    SimulatedMonitor(const MonitorPlan& plan, const Random& random, runtime::Clock& clock);

    // Transfers. `source` is the host's address, which comes as the data address.
    std::int32_t write(std::uint32_t chip, std::uint32_t source, std::span<const std::uint8_t> bytes);
    std::int32_t read(std::uint32_t chip, std::span<std::uint8_t> bytes);

    // What happens to it. Off, it acknowledges nothing; its EDID stays readable.
    void setPower(Power power);
    // The computer has woken: it is deaf for a while if that is its manner.
    void wake();
    void pressInputButton(std::uint16_t input);
    // Its own menu changes a value, whatever the host may write.
    void adjust(std::uint8_t code, std::uint16_t value);
    // It is well-behaved from now on; its values, input and input readings stay.
    void becomeHealthy();
    // One listener, set before the first transfer.
    void onPulse(PulseListener listener);

    // The value that a well-timed read gives, if it has the code.
    std::optional<std::uint16_t> value(std::uint8_t code) const;
    // Nothing for a monitor without inputs.
    std::optional<std::uint16_t> shownInput() const;
    bool isOnBus(runtime::MonotonicTime now) const;
    // Whether an AV service handle stops working at a reconfiguration.
    bool handlesGoStale() const;

    MonitorCounters counters() const;
    // Keeps every transfer from now on, for trace().
    void recordTrace();
    std::vector<WireRecord> trace() const;

  private:
    class Transfer;

    // The part of a personality that shows on the bus, whatever the firmware does.
    struct BusManner {
        Duration byteTime{0};
        bool isDead = false;
        Occasions naks;
        std::vector<Span> nakDuring;
        bool handlesGoStale = false;
    };

    bool acknowledges(std::uint32_t chip, runtime::MonotonicTime now);
    void record(const WireRecord& record);

    runtime::Clock& clock_;
    const runtime::MonotonicTime start_;
    std::atomic<unsigned> transfers_ = 0;
    PulseListener pulseListener_;

    mutable std::mutex mutex_;
    MonitorCounters counters_;
    Random random_;
    MonitorFirmware firmware_;
    BusManner manner_;
    Tape tape_;
    Power power_ = Power::on;
    bool isTracing_ = false;
    std::vector<WireRecord> trace_;
};

}  // namespace vantrel::simulated
