#include "platform/simulated/JSONLayout.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace vantrel::simulated::JSONLayout {
namespace {

using nlohmann::ordered_json;

constexpr std::size_t longestLine = 120;
constexpr std::size_t indentation = 2;

std::string scalar(const ordered_json& value) {
    return value.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

// Calls `show` with what begins each member or element, and its value.
template <class Show>
void forEach(const ordered_json& container, Show show) {
    if (container.is_array()) {
        for (const ordered_json& element : container) show(std::string(), element);
    } else {
        for (const auto& [key, value] : container.items()) show(scalar(key) + ": ", value);
    }
}

std::string onOneLine(const ordered_json& value) {
    if (!value.is_structured()) return scalar(value);
    std::string result;
    forEach(value, [&result](const std::string& key, const ordered_json& member) {
        result += (result.empty() ? "" : ", ") + key + onOneLine(member);
    });
    return value.is_array() ? "[" + result + "]" : "{" + result + "}";
}

bool isOfPlainValues(const ordered_json& value) {
    return std::none_of(value.begin(), value.end(),
                        [](const ordered_json& each) { return each.is_structured(); });
}

// Of a list of objects each has its line, even if all of them would fit on one.
bool isList(const ordered_json& value) { return value.is_array() && !isOfPlainValues(value); }

// `begun` is how much the line holds already.
std::string laidOut(const ordered_json& value, std::size_t depth, std::size_t begun) {
    if (!value.is_structured() || isOfPlainValues(value)) return onOneLine(value);
    std::string line = onOneLine(value);
    if (begun + line.size() < longestLine && !isList(value)) return line;
    const std::string indent((depth + 1) * indentation, ' ');
    std::string result;
    forEach(value, [&](const std::string& key, const ordered_json& member) {
        result += (result.empty() ? "\n" : ",\n") + indent + key;
        result += laidOut(member, depth + 1, indent.size() + key.size());
    });
    result += "\n" + std::string(depth * indentation, ' ');
    return value.is_array() ? "[" + result + "]" : "{" + result + "}";
}

}  // namespace

std::string text(const ordered_json& value) { return laidOut(value, 0, 0) + "\n"; }

}  // namespace vantrel::simulated::JSONLayout
