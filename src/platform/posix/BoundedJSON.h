// JSON from files: not so deep that reading, copying or writing it could use up
// the stack. Members keep their order.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>

namespace vantrel::posix::BoundedJSON {

using JSON = nlohmann::ordered_json;

// Arrays and objects within each other.
inline constexpr int deepest = 64;

// Nothing if the text is not JSON, or deeper.
std::optional<JSON> parse(std::string_view text, int deepestHere = deepest);

}  // namespace vantrel::posix::BoundedJSON
