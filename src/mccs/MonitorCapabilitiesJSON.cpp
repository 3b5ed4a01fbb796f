#include "mccs/MonitorCapabilitiesJSON.h"

#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

namespace vantrel::mccs::MonitorCapabilitiesJSON {
namespace {

using JSON = nlohmann::json;
// Keeps the keys in the order in which they are written.
using OrderedJSON = nlohmann::ordered_json;

const JSON* member(const JSON& object, const char* key) {
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

std::optional<std::string> text(const JSON* json) {
    if (!json || !json->is_string()) return std::nullopt;
    return json->get<std::string>();
}

template <typename Integer>
std::optional<Integer> integer(const JSON& json) {
    if (!json.is_number_unsigned()) return std::nullopt;
    const auto number = json.get<std::uint64_t>();
    if (number > std::numeric_limits<Integer>::max()) return std::nullopt;
    return static_cast<Integer>(number);
}

template <typename Integer>
std::optional<std::vector<Integer>> integers(const JSON* json) {
    if (!json || !json->is_array()) return std::nullopt;
    std::vector<Integer> result;
    for (const JSON& element : *json) {
        const std::optional<Integer> number = integer<Integer>(element);
        if (!number) return std::nullopt;
        result.push_back(*number);
    }
    return result;
}

std::optional<std::map<std::uint8_t, std::vector<std::uint16_t>>> values(const JSON* json) {
    if (!json || !json->is_array() || json->size() % 2 != 0) return std::nullopt;
    std::map<std::uint8_t, std::vector<std::uint16_t>> result;
    for (std::size_t index = 0; index < json->size(); index += 2) {
        const auto code = integer<std::uint8_t>((*json)[index]);
        auto list = integers<std::uint16_t>(&(*json)[index + 1]);
        if (!code || !list) return std::nullopt;
        result.insert_or_assign(*code, std::move(*list));
    }
    return result;
}

}  // namespace

std::string encode(const MonitorCapabilities& capabilities) {
    OrderedJSON json = OrderedJSON::object();
    json["raw"] = capabilities.raw;
    if (capabilities.model) json["model"] = *capabilities.model;
    json["codes"] = capabilities.codes;
    OrderedJSON& values = json["values"] = OrderedJSON::array();
    for (const auto& [code, list] : capabilities.values) {
        values.push_back(code);
        values.push_back(list);
    }
    return json.dump(-1, ' ', false, OrderedJSON::error_handler_t::replace);
}

std::optional<MonitorCapabilities> decode(std::string_view json) {
    constexpr auto noCallback = nullptr;
    constexpr bool throwsOnErrors = false;
    const JSON object = JSON::parse(json, noCallback, throwsOnErrors);
    if (!object.is_object()) return std::nullopt;

    std::optional<std::string> raw = text(member(object, "raw"));
    auto codes = integers<std::uint8_t>(member(object, "codes"));
    auto listedValues = values(member(object, "values"));
    if (!raw || !codes || !listedValues) return std::nullopt;

    const JSON* const modelMember = member(object, "model");
    const bool hasModel = modelMember && !modelMember->is_null();
    std::optional<std::string> model = hasModel ? text(modelMember) : std::nullopt;
    if (hasModel && !model) return std::nullopt;

    return MonitorCapabilities{
        .raw = std::move(*raw),
        .model = std::move(model),
        .codes = std::move(*codes),
        .values = std::move(*listedValues),
    };
}

}  // namespace vantrel::mccs::MonitorCapabilitiesJSON
