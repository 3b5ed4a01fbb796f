// A value in a JSON text together with where it stands. The reading functions
// give nothing when the value isn't what they ask for, and keep the mistake if
// it is the first of the text; so a reader goes on and checks once at the end.
//
// Lifetime: the JSON tree and the mistake outlive the place.
#pragma once

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/simulated/Mistake.h"

namespace vantrel::simulated {

class JSONPlace {
  public:
    // Codes and identities may also be written as "0x1A".
    enum class Notation { decimal, decimalOrHexadecimal };

    JSONPlace(const nlohmann::json& value, std::optional<Mistake>& mistake) : JSONPlace(value, "", mistake) {}

    const nlohmann::json& value() const { return *value_; }
    bool isObject() const;

    std::optional<bool> flag() const;
    std::optional<double> number(double minimum, double maximum) const;
    std::optional<std::uint64_t> wholeNumber(std::uint64_t minimum, std::uint64_t maximum, Notation) const;
    std::optional<std::string> text() const;
    // Bytes as {"hex": "28 70 ..."}, or a text's own bytes.
    std::optional<std::string> bytes() const;
    // Bytes as a text like "28 70".
    std::optional<std::string> hexBytes() const;

    std::vector<JSONPlace> elements() const;
    std::vector<std::pair<std::string, JSONPlace>> members() const;
    bool has(const std::string& key) const;
    // The value is null when there is no such member.
    JSONPlace member(const std::string& key) const;

    void report(std::string reason) const;
    // "must be <expected>, not <what it is>"
    void reportType(const std::string& expected) const;

  private:
    JSONPlace(const nlohmann::json& value, std::string path, std::optional<Mistake>& mistake)
        : value_(&value), path_(std::move(path)), mistake_(&mistake) {}

    const nlohmann::json* value_;
    std::string path_;
    std::optional<Mistake>* mistake_;
};

// "0x" and up to `digits` hexadecimal digits.
std::optional<std::uint64_t> parseHexadecimal(const std::string& text, std::size_t digits);

}  // namespace vantrel::simulated
