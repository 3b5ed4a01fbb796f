// Finds one named section of a capabilities string.
#pragma once

#include <optional>
#include <string_view>

namespace vantrel::mccs {

// The contents of the first `name(...)` in `text`, cut from `text` itself, nested
// parentheses included; everything up to the end when its ")" is missing.
//
// `name` is in lower case and found in any case, but not as the end of a longer
// word: neither a letter of any script nor "_" may stand before it.
std::optional<std::string_view> capabilitiesSection(std::string_view name, std::string_view text);

}  // namespace vantrel::mccs
