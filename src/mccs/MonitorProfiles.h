// The monitor models that misreport their inputs, and what to make of their
// readings of Input Select.
//
// Threads: any. The table is made on first use and lives as long as the process.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>

#include "mccs/InputProfile.h"
#include "platform/DisplayServices.h"

namespace vantrel::mccs::MonitorProfiles {

// A monitor model, by the numbers of its EDID as the platform reports them.
struct Model {
    std::uint32_t vendor;   // manufacturer ID
    std::uint32_t product;  // product code
    auto operator<=>(const Model&) const = default;
};

const std::map<Model, InputProfile>& inputProfiles();

// The profile of a display's model; nothing when it needs none. Lives as long as
// the process.
const InputProfile* inputProfile(platform::DisplayServices& displays, platform::DisplayID display);

// The MCCS value that a raw reading of Input Select stands for: the reading
// itself unless the profile (which may be absent) says otherwise.
std::uint16_t mccsInput(std::uint16_t rawReading, const InputProfile* profile);

// The current input that a raw reading tells: nothing when its MCCS value is not
// among the display's input options.
std::optional<std::uint16_t> currentInput(std::uint16_t rawReading, const InputProfile* profile,
                                          std::span<const std::uint16_t> options);

}  // namespace vantrel::mccs::MonitorProfiles
