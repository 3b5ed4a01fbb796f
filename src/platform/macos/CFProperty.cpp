#include "platform/macos/CFProperty.h"

#include <utility>

#include "platform/macos/CFValues.h"

namespace vantrel::macos::CFProperty {

platform::PropertyValue value(CFTypeRef object) {
    if (auto text = CFValues::text(object)) return std::move(*text);
    if (const auto integer = CFValues::integer(object)) return *integer;
    const auto entries = CFValues::entries(object);
    if (!entries) return std::monostate();
    platform::PropertyDictionary dictionary;
    for (const auto& [key, entry] : *entries) dictionary.emplace(key, value(entry));
    return dictionary;
}

}  // namespace vantrel::macos::CFProperty
