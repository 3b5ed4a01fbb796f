#include "persistence/StoredJSON.h"

#include <limits>
#include <nlohmann/json.hpp>

namespace vantrel::persistence::StoredJSON {
namespace {

using JSON = nlohmann::ordered_json;

// Names of displays come from outside; a byte that is no UTF-8 is replaced.
std::string dump(const JSON& json) { return json.dump(-1, ' ', false, JSON::error_handler_t::replace); }

std::optional<JSON> parsedArray(std::string_view text) {
    JSON json = JSON::parse(text, nullptr, false);
    if (!json.is_array()) return std::nullopt;
    return json;
}

template <class Number>
std::optional<Number> number(const JSON& json) {
    if (!json.is_number_integer()) return std::nullopt;
    if (json.is_number_unsigned()) {
        const auto value = json.get<std::uint64_t>();
        if (value > std::numeric_limits<Number>::max()) return std::nullopt;
        return static_cast<Number>(value);
    }
    const auto value = json.get<std::int64_t>();
    if (value < 0 || static_cast<std::uint64_t>(value) > std::numeric_limits<Number>::max())
        return std::nullopt;
    return static_cast<Number>(value);
}

std::optional<std::string> textMember(const JSON& object, const char* key) {
    const auto found = object.find(key);
    if (found == object.end() || !found->is_string()) return std::nullopt;
    return found->get<std::string>();
}

std::optional<DisabledDisplay> display(const JSON& json) {
    if (!json.is_object() || !json.contains("id")) return std::nullopt;
    const auto id = number<platform::DisplayID>(json.at("id"));
    const auto key = textMember(json, "key");
    const auto name = textMember(json, "name");
    if (!id || !key || !name) return std::nullopt;
    return DisabledDisplay{*id, *key, *name};
}

}  // namespace

std::string encodeInputs(const std::vector<std::uint16_t>& inputs) { return dump(JSON(inputs)); }

std::optional<std::vector<std::uint16_t>> decodeInputs(std::string_view text) {
    const auto json = parsedArray(text);
    if (!json) return std::nullopt;
    std::vector<std::uint16_t> inputs;
    for (const JSON& element : *json) {
        const auto input = number<std::uint16_t>(element);
        if (!input) return std::nullopt;
        inputs.push_back(*input);
    }
    return inputs;
}

std::string encodeAliases(const std::map<std::uint16_t, std::string>& aliases) {
    JSON json = JSON::array();
    for (const auto& [input, alias] : aliases) {
        json.push_back(input);
        json.push_back(alias);
    }
    return dump(json);
}

std::optional<std::map<std::uint16_t, std::string>> decodeAliases(std::string_view text) {
    const auto json = parsedArray(text);
    if (!json || json->size() % 2 != 0) return std::nullopt;
    std::map<std::uint16_t, std::string> aliases;
    for (std::size_t i = 0; i < json->size(); i += 2) {
        const auto input = number<std::uint16_t>((*json)[i]);
        if (!input || !(*json)[i + 1].is_string()) return std::nullopt;
        aliases[*input] = (*json)[i + 1].get<std::string>();
    }
    return aliases;
}

std::string encodeDisplays(const std::vector<DisabledDisplay>& displays) {
    JSON json = JSON::array();
    for (const DisabledDisplay& display : displays) {
        json.push_back(JSON{{"id", display.id}, {"key", display.key}, {"name", display.name}});
    }
    return dump(json);
}

std::optional<std::vector<DisabledDisplay>> decodeDisplays(std::string_view text) {
    const auto json = parsedArray(text);
    if (!json) return std::nullopt;
    std::vector<DisabledDisplay> displays;
    for (const JSON& element : *json) {
        auto decoded = display(element);
        if (!decoded) return std::nullopt;
        displays.push_back(std::move(*decoded));
    }
    return displays;
}

}  // namespace vantrel::persistence::StoredJSON
