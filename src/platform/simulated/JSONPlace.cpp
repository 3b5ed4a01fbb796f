#include "platform/simulated/JSONPlace.h"

#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

#include "platform/simulated/JSONText.h"

namespace vantrel::simulated {
namespace {

using nlohmann::json;

std::string shownLimit(double limit) {
    return limit == std::floor(limit) ? std::to_string(std::llround(limit)) : json(limit).dump();
}

std::optional<std::uint8_t> hexDigit(char digit) {
    std::uint8_t value = 0;
    const auto [end, error] = std::from_chars(&digit, &digit + 1, value, 16);
    if (error != std::errc()) return std::nullopt;
    return value;
}

// Pairs of digits, with any blanks around the pairs.
std::optional<std::string> parseHexBytes(const std::string& text) {
    std::string result;
    for (std::size_t index = 0; index < text.size();) {
        if (text[index] == ' ') {
            ++index;
            continue;
        }
        const auto high = hexDigit(text[index]);
        const auto low = index + 1 < text.size() ? hexDigit(text[index + 1]) : std::nullopt;
        if (!high || !low) return std::nullopt;
        result += static_cast<char>(*high << 4 | *low);
        index += 2;
    }
    return result;
}

}  // namespace

std::optional<std::uint64_t> parseHexadecimal(const std::string& text, std::size_t digits) {
    if (text.size() < 3 || text.size() > 2 + digits || !text.starts_with("0x")) return std::nullopt;
    std::uint64_t value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data() + 2, end, value, 16);
    if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
    return value;
}

std::optional<bool> JSONPlace::flag() const {
    if (value_->is_boolean()) return value_->get<bool>();
    reportType("true or false");
    return std::nullopt;
}

std::optional<double> JSONPlace::number(double minimum, double maximum) const {
    if (!value_->is_number()) {
        reportType("a number");
        return std::nullopt;
    }
    const double result = value_->get<double>();
    if (result < minimum) report(value_->dump() + " is less than " + shownLimit(minimum));
    if (result > maximum) report(value_->dump() + " is more than " + shownLimit(maximum));
    if (result < minimum || result > maximum) return std::nullopt;
    return result;
}

std::optional<std::uint64_t> JSONPlace::wholeNumber(std::uint64_t minimum, std::uint64_t maximum,
                                                    Notation notation) const {
    constexpr std::size_t longest = 16;
    std::optional<std::uint64_t> result;
    std::string shown;
    if (value_->is_string() && notation == Notation::decimalOrHexadecimal) {
        shown = value_->get<std::string>();
        result = parseHexadecimal(shown, longest);
        if (!result) report(JSONText::inQuotes(shown) + " is not a hexadecimal number like \"0x1A\"");
    } else if (value_->is_number()) {
        shown = value_->dump();
        const double approximate = value_->get<double>();
        if (approximate < 0) {
            report(shown + " is less than " + std::to_string(minimum));
        } else if (!value_->is_number_float()) {
            result = value_->get<std::uint64_t>();
        } else if (approximate > static_cast<double>(maximum)) {
            report(shown + " is more than " + std::to_string(maximum));
        } else {
            reportType("a whole number");
        }
    } else {
        reportType(notation == Notation::decimal ? "a whole number"
                                                 : "a whole number or a text like \"0x1A\"");
    }
    if (!result) return std::nullopt;
    if (*result < minimum) report(shown + " is less than " + std::to_string(minimum));
    if (*result > maximum) report(shown + " is more than " + std::to_string(maximum));
    if (*result < minimum || *result > maximum) return std::nullopt;
    return result;
}

std::optional<std::string> JSONPlace::text() const {
    if (value_->is_string()) return value_->get<std::string>();
    reportType("a text");
    return std::nullopt;
}

std::optional<std::string> JSONPlace::bytes() const {
    if (value_->is_string()) return value_->get<std::string>();
    if (!value_->is_object() || !has("hex")) {
        reportType("a text or {\"hex\": \"28 70 ...\"}");
        return std::nullopt;
    }
    for (const auto& [key, place] : members()) {
        if (key != "hex") place.report("is not a known field");
    }
    return member("hex").hexBytes();
}

std::optional<std::string> JSONPlace::hexBytes() const {
    const std::optional<std::string> digits = text();
    if (!digits) return std::nullopt;
    std::optional<std::string> result = parseHexBytes(*digits);
    if (!result) report(JSONText::inQuotes(*digits) + " is not pairs of hexadecimal digits");
    return result;
}

std::vector<JSONPlace> JSONPlace::elements() const {
    std::vector<JSONPlace> result;
    if (!value_->is_array()) {
        reportType("a list");
        return result;
    }
    for (const json& element : *value_) {
        result.push_back(JSONPlace(element, JSONText::elementPlace(path_, result.size()), *mistake_));
    }
    return result;
}

std::vector<std::pair<std::string, JSONPlace>> JSONPlace::members() const {
    std::vector<std::pair<std::string, JSONPlace>> result;
    if (!value_->is_object()) {
        reportType("an object");
        return result;
    }
    for (const auto& [key, value] : value_->items()) result.emplace_back(key, member(key));
    return result;
}

bool JSONPlace::isObject() const { return value_->is_object(); }

bool JSONPlace::has(const std::string& key) const { return value_->is_object() && value_->contains(key); }

JSONPlace JSONPlace::member(const std::string& key) const {
    static const json absent;
    return {has(key) ? value_->at(key) : absent, JSONText::memberPlace(path_, key), *mistake_};
}

void JSONPlace::report(std::string reason) const {
    if (!mistake_->has_value()) *mistake_ = Mistake{path_, std::move(reason)};
}

void JSONPlace::reportType(const std::string& expected) const {
    std::string found = value_->dump(-1, ' ', true, json::error_handler_t::replace);
    if (value_->is_string()) found = "a text";
    if (value_->is_array()) found = "a list";
    if (value_->is_object()) found = "an object";
    report("must be " + expected + ", not " + found);
}

}  // namespace vantrel::simulated
