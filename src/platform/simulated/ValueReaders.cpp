#include "platform/simulated/ValueReaders.h"

#include <cmath>
#include <nlohmann/json.hpp>

namespace vantrel::simulated::ValueReaders {
namespace {

template <class Unit>
std::optional<Duration> duration(const JSONPlace& place) {
    using Fraction = std::chrono::duration<double, typename Unit::period>;
    const auto value = place.number(0, Fraction(longestDuration).count());
    if (!value) return std::nullopt;
    return std::chrono::round<Duration>(Fraction(*value));
}

}  // namespace

std::optional<Duration> milliseconds(const JSONPlace& place) {
    return duration<std::chrono::milliseconds>(place);
}

std::optional<Duration> microseconds(const JSONPlace& place) {
    return duration<std::chrono::microseconds>(place);
}

const ObjectShape<Occurrence>& occurrenceShape() {
    constexpr unsigned most = 1'000'000;
    static const ObjectShape<Occurrence> shape{
        "Occurrence",
        {
            {"probability",
             into(&Occurrence::probability, [](const JSONPlace& place) { return place.number(0, 1); })},
            {"every", into(&Occurrence::every, count(1U, most))},
            {"first", into(&Occurrence::first, count(1U, most))},
        },
        {}};
    return shape;
}

std::optional<Occurrence> occurrence(const JSONPlace& place) {
    Occurrence result;
    if (place.value().is_boolean()) {
        result.every = place.value().get<bool>() ? 1 : 0;
    } else if (place.value().is_number()) {
        const auto probability = place.number(0, 1);
        if (!probability) return std::nullopt;
        result.probability = *probability;
    } else if (place.value().is_object()) {
        return occurrenceShape()(place);
    } else {
        place.reportType("true, false, a probability, {\"every\": N} or {\"first\": N}");
        return std::nullopt;
    }
    return result;
}

}  // namespace vantrel::simulated::ValueReaders
