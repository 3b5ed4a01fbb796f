#include "platform/recording/Disguise.h"

#include "text/UTF8.h"

namespace vantrel::recording {
namespace {

using platform::PropertyDictionary;
using platform::PropertyValue;

// Vendor and product, four hexadecimal digits each.
constexpr std::size_t vendorDigits = 4;
constexpr std::size_t kindDigits = 8;
constexpr std::string_view groups = "-0000-0000-0000-";
constexpr std::size_t lastGroup = 12;

bool isHexadecimal(char digit) {
    return (digit >= '0' && digit <= '9') || (digit >= 'A' && digit <= 'F') || (digit >= 'a' && digit <= 'f');
}

// As far as they are there.
std::string kindOf(const std::string& uuid) {
    std::size_t digits = 0;
    while (digits < uuid.size() && digits < kindDigits && isHexadecimal(uuid[digits])) ++digits;
    if (digits < uuid.size() && digits < kindDigits) digits = digits < vendorDigits ? 0 : vendorDigits;
    return uuid.substr(0, digits);
}

std::string tail(std::size_t number) {
    const std::string digits = std::to_string(number);
    return std::string(groups) + std::string(lastGroup - digits.size(), '0') + digits;
}

PropertyValue shownText(const PropertyValue& real) {
    const auto* text = std::get_if<std::string>(&real);
    if (text == nullptr) return std::monostate();
    return text::repairedUTF8(*text);
}

}  // namespace

std::uint32_t Disguise::serial(std::uint32_t real) {
    if (real == 0) return 0;
    const std::lock_guard lock(mutex_);
    const auto next = static_cast<std::uint32_t>(serials_.size() + 1);
    return serials_.try_emplace(real, next).first->second;
}

std::optional<PropertyValue> Disguise::property(std::string_view key, const PropertyValue& real) {
    if (key == "Location") return shownText(real);
    if (key == "EDID UUID") {
        const auto* uuid = std::get_if<std::string>(&real);
        if (uuid == nullptr) return std::monostate();
        return edidUUID(*uuid);
    }
    if (key != "DisplayAttributes") return std::nullopt;
    const auto* attributes = std::get_if<PropertyDictionary>(&real);
    if (attributes == nullptr) return std::monostate();
    PropertyDictionary shown;
    if (const auto product = attributes->find("ProductAttributes"); product != attributes->end()) {
        const auto* dictionary = std::get_if<PropertyDictionary>(&product->second);
        PropertyValue& place = shown["ProductAttributes"];
        if (dictionary != nullptr) place = productAttributes(*dictionary);
    }
    return shown;
}

std::string Disguise::edidUUID(const std::string& real) {
    std::string kind = kindOf(real);
    const std::string rest = real.substr(kind.size());
    if (rest.empty() || rest == tail(0)) return real;
    const std::lock_guard lock(mutex_);
    return kind + tail(tails_.try_emplace(rest, tails_.size() + 1).first->second);
}

PropertyDictionary Disguise::productAttributes(const PropertyDictionary& real) {
    PropertyDictionary shown;
    if (const auto found = real.find("SerialNumber"); found != real.end()) {
        PropertyValue& place = shown["SerialNumber"];
        if (const auto* number = std::get_if<std::int64_t>(&found->second))
            place = static_cast<std::int64_t>(serial(static_cast<std::uint32_t>(*number)));
    }
    if (const auto found = real.find("ProductName"); found != real.end())
        shown["ProductName"] = shownText(found->second);
    return shown;
}

}  // namespace vantrel::recording
