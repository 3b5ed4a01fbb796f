// Readers of single values: from a place to the value, or to nothing after a
// reported mistake. For the tables in ObjectShape.
#pragma once

#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/simulated/JSONPlace.h"
#include "platform/simulated/JSONText.h"
#include "platform/simulated/ObjectShape.h"
#include "platform/simulated/Personality.h"
#include "platform/simulated/Words.h"

namespace vantrel::simulated::ValueReaders {

// The longest span of time that a knob takes.
constexpr std::chrono::hours longestDuration{24};

std::optional<Duration> milliseconds(const JSONPlace& place);
std::optional<Duration> microseconds(const JSONPlace& place);
std::optional<Occurrence> occurrence(const JSONPlace& place);
const ObjectShape<Occurrence>& occurrenceShape();

inline std::optional<bool> flag(const JSONPlace& place) { return place.flag(); }
inline std::optional<std::string> text(const JSONPlace& place) { return place.text(); }
inline std::optional<std::string> bytes(const JSONPlace& place) { return place.bytes(); }

// A code or identity: any value of its type, decimal or hexadecimal.
template <class Code>
std::optional<Code> code(const JSONPlace& place) {
    const auto value =
        place.wholeNumber(0, std::numeric_limits<Code>::max(), JSONPlace::Notation::decimalOrHexadecimal);
    if (!value) return std::nullopt;
    return static_cast<Code>(*value);
}

template <class Count>
auto count(Count minimum, Count maximum) {
    return [minimum, maximum](const JSONPlace& place) -> std::optional<Count> {
        const auto value = place.wholeNumber(minimum, maximum, JSONPlace::Notation::decimal);
        if (!value) return std::nullopt;
        return static_cast<Count>(*value);
    };
}

template <class Reader>
auto listOf(Reader reader) {
    return [reader](const JSONPlace& place) {
        std::vector<typename decltype(reader(place))::value_type> result;
        for (const JSONPlace& element : place.elements()) {
            if (auto value = reader(element)) result.push_back(*std::move(value));
        }
        return std::optional(std::move(result));
    };
}

// A word for each value of an enumeration.
template <class Value>
struct WordTable {
    // In the format's document.
    std::string_view heading;
    std::vector<std::pair<std::string_view, Value>> entries;

    std::optional<Value> operator()(const JSONPlace& place) const {
        const std::optional<std::string> word = place.text();
        if (!word) return std::nullopt;
        for (const auto& [name, value] : entries) {
            if (name == *word) return value;
        }
        std::string known;
        for (const auto& [name, value] : entries) known += (known.empty() ? "" : ", ") + std::string(name);
        place.report(JSONText::inQuotes(*word) + " is not one of " + known);
        return std::nullopt;
    }

    Words words() const {
        Words result{heading, {}};
        for (const auto& [name, value] : entries) result.words.push_back(name);
        return result;
    }
};

}  // namespace vantrel::simulated::ValueReaders
