// JSON for people: what fits on a line is one, and so is a container of plain values;
// everything else is a line per member or element.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

namespace vantrel::simulated {

namespace JSONLayout {

// With a line break at the end. What is no valid UTF-8 becomes U+FFFD.
std::string text(const nlohmann::ordered_json& value);

}  // namespace JSONLayout
}  // namespace vantrel::simulated
