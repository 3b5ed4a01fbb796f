#include "platform/linux/randr/Placement.h"

#include <limits>
#include <utility>

namespace vantrel::randr {

using nlohmann::json;

std::string Placement::text() const {
    const json object{
        {"picture", picture.toJSON()}, {"primary", isPrimary}, {"crtc", crtc}, {"shared", shared}};
    // Names come from the server, which need not know UTF-8.
    return object.dump(-1, ' ', true, json::error_handler_t::replace);
}

std::optional<Placement> Placement::parse(const std::string& text) {
    const json object = json::parse(text, nullptr, false);
    if (!object.is_object()) return std::nullopt;
    for (const char* const key : {"picture", "primary", "crtc", "shared"}) {
        if (!object.contains(key)) return std::nullopt;
    }
    auto picture = Picture::fromJSON(object["picture"]);
    const json& crtc = object["crtc"];
    if (!picture || !object["primary"].is_boolean() || !crtc.is_number_unsigned() ||
        crtc.get<std::uint64_t>() > std::numeric_limits<std::uint32_t>::max() ||
        !object["shared"].is_array()) {
        return std::nullopt;
    }
    Placement placement;
    placement.picture = std::move(*picture);
    placement.isPrimary = object["primary"].get<bool>();
    placement.crtc = crtc.get<std::uint32_t>();
    for (const json& name : object["shared"]) {
        if (!name.is_string()) return std::nullopt;
        placement.shared.push_back(name.get<std::string>());
    }
    return placement;
}

}  // namespace vantrel::randr
