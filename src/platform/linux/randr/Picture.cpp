#include "platform/linux/randr/Picture.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace vantrel::randr {

using nlohmann::json;

namespace {

// More than any filter takes.
constexpr std::size_t mostParameters = 1024;

// Numbers that all lie between the limits, or nothing.
std::optional<std::vector<std::int32_t>> numbers(const json& object, const char* key, std::int64_t least,
                                                 std::int64_t most) {
    const auto found = object.find(key);
    if (found == object.end() || !found->is_array() || found->size() > mostParameters) return std::nullopt;
    std::vector<std::int32_t> values;
    for (const json& value : *found) {
        if (!value.is_number_integer()) return std::nullopt;
        if (value.is_number_unsigned() && value.get<std::uint64_t>() > std::uint64_t{1} << 62)
            return std::nullopt;
        const auto number = value.get<std::int64_t>();
        if (number < least || number > most) return std::nullopt;
        values.push_back(static_cast<std::int32_t>(number));
    }
    return values;
}

template <std::size_t size>
bool take(const json& object, const char* key, std::int64_t least, std::int64_t most,
          std::array<std::int32_t, size>& into) {
    const auto values = numbers(object, key, least, most);
    if (!values || values->size() != size) return false;
    std::copy(values->begin(), values->end(), into.begin());
    return true;
}

bool take(const json& object, const char* key, std::string& into) {
    const auto found = object.find(key);
    if (found == object.end() || !found->is_string()) return false;
    into = found->get<std::string>();
    return true;
}

constexpr std::int64_t least32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t most32 = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t least16 = std::numeric_limits<std::int16_t>::min();
constexpr std::int64_t most16 = std::numeric_limits<std::uint16_t>::max();

}  // namespace

json Picture::toJSON() const {
    json object{{"mode", mode.name},
                {"size", {mode.width, mode.height}},
                {"refresh", {mode.refresh}},
                {"area", {area.x, area.y, area.width, area.height}},
                {"rotation", {rotation}}};
    // What hardly any picture has is told only where it is there.
    if (transform != Transform()) {
        object["transform"] = transform.matrix;
        object["filter"] = transform.filter;
        object["parameters"] = transform.parameters;
    }
    if (panning != Panning()) object["panning"] = panning;
    return object;
}

std::optional<Picture> Picture::fromJSON(const json& object) {
    Picture picture;
    std::array<std::int32_t, 2> size{};
    std::array<std::int32_t, 1> refresh{};
    std::array<std::int32_t, 4> area{};
    std::array<std::int32_t, 1> rotation{};
    if (!object.is_object() || !take(object, "mode", picture.mode.name) ||
        !take(object, "size", 1, most16, size) || !take(object, "refresh", 0, most32, refresh) ||
        !take(object, "area", least16, most16, area) || !take(object, "rotation", 1, most16, rotation)) {
        return std::nullopt;
    }
    picture.mode.width = static_cast<std::uint16_t>(size[0]);
    picture.mode.height = static_cast<std::uint16_t>(size[1]);
    picture.mode.refresh = static_cast<std::uint32_t>(refresh[0]);
    picture.area = {area[0], area[1], area[2], area[3]};
    picture.rotation = static_cast<std::uint16_t>(rotation[0]);
    if (object.contains("transform")) {
        auto parameters = numbers(object, "parameters", least32, most32);
        if (!parameters || !take(object, "transform", least32, most32, picture.transform.matrix) ||
            !take(object, "filter", picture.transform.filter)) {
            return std::nullopt;
        }
        picture.transform.parameters = std::move(*parameters);
    }
    if (object.contains("panning") && !take(object, "panning", least16, most16, picture.panning)) {
        return std::nullopt;
    }
    return picture;
}

}  // namespace vantrel::randr
