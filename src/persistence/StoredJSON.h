// The JSON payloads of stored values. Maps whose keys are numbers become one flat
// array of keys and values by turns; an absent optional is left out.
//
// decode... gives nothing on any mistake: no JSON, a key missing, a value of
// another type or out of range.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "persistence/DisabledDisplay.h"

namespace vantrel::persistence::StoredJSON {

std::string encodeInputs(const std::vector<std::uint16_t>& inputs);
std::optional<std::vector<std::uint16_t>> decodeInputs(std::string_view json);

std::string encodeAliases(const std::map<std::uint16_t, std::string>& aliases);
std::optional<std::map<std::uint16_t, std::string>> decodeAliases(std::string_view json);

std::string encodeDisplays(const std::vector<DisabledDisplay>& displays);
std::optional<std::vector<DisabledDisplay>> decodeDisplays(std::string_view json);

}  // namespace vantrel::persistence::StoredJSON
