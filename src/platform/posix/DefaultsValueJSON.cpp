#include "platform/posix/DefaultsValueJSON.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

#include "platform/posix/BoundedJSON.h"
#include "text/Base64.h"
#include "text/UTF8.h"

namespace vantrel::posix::DefaultsValueJSON {
namespace {

using JSON = BoundedJSON::JSON;
using platform::DefaultsData;
using platform::DefaultsDictionary;
using platform::DefaultsValue;

// Less than a file may have, so that the data fits into it.
constexpr int deepestData = BoundedJSON::deepest / 2;

JSON tagged(const char* type, JSON content) {
    JSON json = JSON::object();
    json[type] = std::move(content);
    return json;
}

struct Encoder {
    JSON operator()(const DefaultsData& data) const {
        if (auto json = BoundedJSON::parse(data.bytes, deepestData); json && json->dump() == data.bytes)
            return tagged("json", std::move(*json));
        return tagged("base64", text::Base64::encode(data.bytes));
    }
    JSON operator()(std::int64_t integer) const { return tagged("integer", integer); }
    JSON operator()(const std::string& text) const { return tagged("text", text::repairedUTF8(text)); }
    JSON operator()(const DefaultsDictionary& dictionary) const {
        JSON json = JSON::object();
        for (const auto& [key, value] : dictionary) {
            const auto* real = std::get_if<double>(&value);
            if (real == nullptr) {
                json[text::repairedUTF8(key)] = text::repairedUTF8(std::get<std::string>(value));
            } else if (std::isfinite(*real)) {
                json[text::repairedUTF8(key)] = *real;
            }
        }
        return tagged("dictionary", std::move(json));
    }
};

std::optional<DefaultsValue> decodedInteger(const JSON& json) {
    if (!json.is_number_integer()) return std::nullopt;
    constexpr std::uint64_t most = std::numeric_limits<std::int64_t>::max();
    if (json.is_number_unsigned() && json.get<std::uint64_t>() > most) return std::nullopt;
    return json.get<std::int64_t>();
}

std::optional<DefaultsValue> decodedDictionary(const JSON& json) {
    if (!json.is_object()) return std::nullopt;
    DefaultsDictionary dictionary;
    for (const auto& [key, value] : json.items()) {
        if (value.is_number()) {
            dictionary[key] = value.get<double>();
        } else if (value.is_string()) {
            dictionary[key] = value.get<std::string>();
        } else {
            return std::nullopt;
        }
    }
    return dictionary;
}

std::optional<DefaultsValue> decodedBase64(const JSON& json) {
    if (!json.is_string()) return std::nullopt;
    auto bytes = text::Base64::decode(json.get_ref<const std::string&>());
    if (!bytes) return std::nullopt;
    return DefaultsData{std::move(*bytes)};
}

}  // namespace

std::string encode(const DefaultsValue& value) { return std::visit(Encoder{}, value).dump(); }

std::optional<DefaultsValue> decode(std::string_view text) {
    const auto json = BoundedJSON::parse(text);
    if (!json || !json->is_object() || json->size() != 1) return std::nullopt;
    const std::string& type = json->begin().key();
    const JSON& content = json->begin().value();
    if (type == "integer") return decodedInteger(content);
    if (type == "text" && content.is_string()) return content.get<std::string>();
    if (type == "dictionary") return decodedDictionary(content);
    if (type == "json") return DefaultsData{content.dump()};
    if (type == "base64") return decodedBase64(content);
    return std::nullopt;
}

}  // namespace vantrel::posix::DefaultsValueJSON
