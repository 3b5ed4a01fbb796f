// The VCP codes that a monitor has, with their values.
//
// A Set VCP request never makes a code: unknown and unsupported ones are ignored.
// So is a value above the maximum (unless that is 0) of a code that MCCS calls
// continuous; the values of other codes may well lie above their maximum.
// Momentary codes keep no value. Restore factory defaults (04), luminance and
// contrast (05) and colour (08) act on any value but 0.
//
// Time: passed in; a written value that goes back does so by itself.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>

#include "platform/simulated/Desk.h"
#include "runtime/Time.h"

namespace vantrel::simulated {

// What a Get VCP reply says of a code.
struct VCPReading {
    // VCP type byte: 0 set parameter, 1 momentary.
    std::uint8_t type = 0;
    std::uint16_t maximum = 0;
    std::uint16_t current = 0;
    bool operator==(const VCPReading&) const = default;
};

class VCPTable {
  public:
    // Written values go back after `revertAfter`; 0 is never.
    VCPTable(const std::map<std::uint8_t, FeaturePlan>& features, Duration revertAfter);

    // Nothing for a code that the monitor does not have.
    std::optional<VCPReading> reading(std::uint8_t code, runtime::MonotonicTime now) const;
    void write(std::uint8_t code, std::uint16_t value, runtime::MonotonicTime now);
    // A person turns the monitor's own knob: any value of a code that it has.
    void adjust(std::uint8_t code, std::uint16_t value);
    // What has not gone back by now stays.
    void stopReverting(runtime::MonotonicTime now);

  private:
    struct Revert {
        runtime::MonotonicTime at;
        std::uint16_t value = 0;
    };
    struct Feature {
        FeaturePlan plan;
        std::uint16_t value = 0;
        std::optional<Revert> revert;

        std::uint16_t valueAt(runtime::MonotonicTime now) const;
    };

    void restore(Feature& feature);
    void restore(std::span<const std::uint8_t> codes);

    std::map<std::uint8_t, Feature> features_;
    Duration revertAfter_;
};

}  // namespace vantrel::simulated
