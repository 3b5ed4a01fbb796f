// One control of a monitor: a VCP code that it has, with what is known of it and
// its last known value. Main thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "mccs/VCPInfo.h"
#include "runtime/Observable.h"
#include "text/Text.h"

namespace vantrel::model {

class VCPFeature {
  public:
    // The maximum of a code whose maximum is not known.
    static constexpr std::uint16_t usualMaximum = 100;

    VCPFeature(std::uint8_t featureCode, mccs::VCPInfo featureInfo)
        : code(featureCode), info(std::move(featureInfo)) {}

    const std::uint8_t code;
    const mccs::VCPInfo info;

    // The values that a choice offers; for the input source the input list.
    runtime::Observable<std::vector<std::uint16_t>> options;
    // Nothing: never read.
    runtime::Observable<std::optional<std::uint16_t>> current;
    runtime::Observable<std::uint16_t> maximum{usualMaximum};

    // What `value` is called, or "0x" and its digits.
    text::Text label(std::uint16_t value) const;
};

}  // namespace vantrel::model
