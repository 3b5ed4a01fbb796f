// JSON text as a tree of values, stricter than the parser behind it: no key
// twice in an object, and no nesting that could exhaust a stack.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <variant>

#include "platform/simulated/Mistake.h"

namespace vantrel::simulated::JSONText {

// Objects and lists within each other, the outermost included.
constexpr std::size_t maximumDepth = 32;

std::variant<nlohmann::json, Mistake> parse(std::string_view text);

// The place of a member or element below `parent`, for a person.
std::string memberPlace(const std::string& parent, const std::string& key);
std::string elementPlace(const std::string& parent, std::size_t index);

// A text from the file as part of a message: quoted, on one line, not too long.
std::string inQuotes(const std::string& text);

}  // namespace vantrel::simulated::JSONText
