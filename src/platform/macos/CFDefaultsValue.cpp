#include "platform/macos/CFDefaultsValue.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/macos/CFText.h"
#include "platform/macos/CFValues.h"

namespace vantrel::macos::CFDefaultsValue {
namespace {

using platform::DefaultsData;
using platform::DefaultsDictionary;

CFHandle<CFTypeRef> makeObject(const DefaultsData& data) {
    return CFHandle<CFTypeRef>(CFDataCreate(kCFAllocatorDefault,
                                            reinterpret_cast<const UInt8*>(data.bytes.data()),
                                            static_cast<CFIndex>(data.bytes.size())));
}

CFHandle<CFTypeRef> makeObject(std::int64_t number) {
    return CFHandle<CFTypeRef>(CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt64Type, &number));
}

CFHandle<CFTypeRef> makeObject(double number) {
    return CFHandle<CFTypeRef>(CFNumberCreate(kCFAllocatorDefault, kCFNumberDoubleType, &number));
}

CFHandle<CFTypeRef> makeObject(const std::string& text) {
    const auto string = CFText::make(text);
    return CFHandle<CFTypeRef>(string ? CFRetain(string.get()) : nullptr);
}

template <class... Kinds>
CFHandle<CFTypeRef> makeObject(const std::variant<Kinds...>& value) {
    return std::visit([](const auto& held) { return makeObject(held); }, value);
}

CFHandle<CFTypeRef> makeObject(const DefaultsDictionary& dictionary) {
    // Own the objects until the dictionary does.
    std::vector<CFHandle<CFTypeRef>> owned;
    std::vector<const void*> keys;
    std::vector<const void*> values;
    for (const auto& [key, value] : dictionary) {
        keys.push_back(owned.emplace_back(makeObject(key)).get());
        values.push_back(owned.emplace_back(makeObject(value)).get());
    }
    const auto isMissing = [](const CFHandle<CFTypeRef>& object) { return !object; };
    if (std::any_of(owned.begin(), owned.end(), isMissing)) return {};
    return CFHandle<CFTypeRef>(
        CFDictionaryCreate(kCFAllocatorDefault, keys.data(), values.data(), static_cast<CFIndex>(keys.size()),
                           &kCFTypeDictionaryKeyCallBacks, &kCFTypeDictionaryValueCallBacks));
}

}  // namespace

CFHandle<CFTypeRef> make(const platform::DefaultsValue& value) {
    return std::visit([](const auto& held) { return makeObject(held); }, value);
}

std::optional<platform::DefaultsValue> read(CFTypeRef object) {
    if (auto bytes = CFValues::bytes(object)) return DefaultsData{std::move(*bytes)};
    if (const auto integer = CFValues::integer(object)) return *integer;
    if (auto text = CFValues::text(object)) return std::move(*text);
    const auto entries = CFValues::entries(object);
    if (!entries) return std::nullopt;
    DefaultsDictionary dictionary;
    for (const auto& [key, entry] : *entries) {
        if (const auto number = CFValues::real(entry)) dictionary.emplace(key, *number);
        if (auto text = CFValues::text(entry)) dictionary.emplace(key, std::move(*text));
    }
    return dictionary;
}

}  // namespace vantrel::macos::CFDefaultsValue
