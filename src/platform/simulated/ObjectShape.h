// The fields that one kind of JSON object may have, and what each one sets. One
// table serves the reading, the check for unknown fields and the vocabulary.
#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/simulated/JSONPlace.h"
#include "platform/simulated/Words.h"

namespace vantrel::simulated {

template <class Plan>
struct Field {
    enum class Need { optional, required };

    std::string key;
    std::function<void(const JSONPlace&, Plan&)> read;
    Need need = Need::optional;
};

template <class Plan>
struct ObjectShape {
    // In the format's document.
    std::string_view heading;
    // Read in this order.
    std::vector<Field<Plan>> fields;
    // What no field can tell alone; called last, with the object's place.
    std::function<void(const JSONPlace&, Plan&)> check;

    // Starts from the plan's defaults.
    std::optional<Plan> operator()(const JSONPlace& place) const {
        if (!place.isObject()) {
            place.reportType("an object");
            return std::nullopt;
        }
        for (const auto& [key, member] : place.members()) {
            const auto isIt = [&name = key](const Field<Plan>& field) { return field.key == name; };
            if (std::none_of(fields.begin(), fields.end(), isIt)) member.report("is not a known field");
        }
        Plan plan;
        for (const Field<Plan>& field : fields) {
            if (place.has(field.key)) {
                field.read(place.member(field.key), plan);
            } else if (field.need == Field<Plan>::Need::required) {
                place.member(field.key).report("is missing");
            }
        }
        if (check) check(place, plan);
        return plan;
    }

    Words words() const {
        Words result{heading, {}};
        for (const Field<Plan>& field : fields) result.words.push_back(field.key);
        return result;
    }
};

// Puts what `reader` makes of the place into a member; a reader gives nothing
// after a mistake.
template <class Plan, class Value, class Reader>
std::function<void(const JSONPlace&, Plan&)> into(Value Plan::*member, Reader reader) {
    return [member, reader](const JSONPlace& place, Plan& plan) {
        if (auto value = reader(place)) plan.*member = *std::move(value);
    };
}

}  // namespace vantrel::simulated
