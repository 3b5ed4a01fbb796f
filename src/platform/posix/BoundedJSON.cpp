#include "platform/posix/BoundedJSON.h"

#include <utility>

namespace vantrel::posix::BoundedJSON {

std::optional<JSON> parse(std::string_view text, int deepestHere) {
    bool isTooDeep = false;
    const auto keepsShallow = [&](int depth, JSON::parse_event_t event, const JSON&) {
        const bool isOpening =
            event == JSON::parse_event_t::object_start || event == JSON::parse_event_t::array_start;
        if (isOpening && depth >= deepestHere) isTooDeep = true;
        return !isTooDeep;
    };
    JSON json = JSON::parse(text, keepsShallow, false);
    if (isTooDeep || json.is_discarded()) return std::nullopt;
    return json;
}

}  // namespace vantrel::posix::BoundedJSON
