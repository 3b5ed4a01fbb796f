// Capabilities as they are kept between runs: a JSON object with the keys "raw",
// "model" (left out when there is none), "codes" and "values". The values are one
// flat array of codes and their lists by turns, [20,[5,8],96,[15,17]], in
// ascending order of the codes, so that equal capabilities give equal bytes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "mccs/MonitorCapabilities.h"

namespace vantrel::mccs::MonitorCapabilitiesJSON {

std::string encode(const MonitorCapabilities& capabilities);

// Nothing on any mistake: no JSON, a required key missing, a value of another
// type or out of range. Keys that it doesn't know are passed over.
std::optional<MonitorCapabilities> decode(std::string_view json);

}  // namespace vantrel::mccs::MonitorCapabilitiesJSON
