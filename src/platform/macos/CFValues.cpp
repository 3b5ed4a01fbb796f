#include "platform/macos/CFValues.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "platform/macos/CFText.h"

namespace vantrel::macos::CFValues {
namespace {

template <class Number>
std::optional<Number> number(CFTypeRef object, CFNumberType type) {
    if (CFGetTypeID(object) != CFNumberGetTypeID()) return std::nullopt;
    Number value = 0;
    if (!CFNumberGetValue(static_cast<CFNumberRef>(object), type, &value)) return std::nullopt;
    return value;
}

}  // namespace

std::optional<std::string> text(CFTypeRef object) {
    if (CFGetTypeID(object) != CFStringGetTypeID()) return std::nullopt;
    return CFText::read(static_cast<CFStringRef>(object));
}

std::optional<std::string> bytes(CFTypeRef object) {
    if (CFGetTypeID(object) != CFDataGetTypeID()) return std::nullopt;
    const auto data = static_cast<CFDataRef>(object);
    // Without bytes there may be no pointer to them, which is as good.
    const auto length = static_cast<std::size_t>(CFDataGetLength(data));
    return std::string(reinterpret_cast<const char*>(CFDataGetBytePtr(data)), length);
}

std::optional<std::int64_t> integer(CFTypeRef object) {
    return number<std::int64_t>(object, kCFNumberSInt64Type);
}

std::optional<double> real(CFTypeRef object) { return number<double>(object, kCFNumberDoubleType); }

std::optional<Entries> entries(CFTypeRef object) {
    if (CFGetTypeID(object) != CFDictionaryGetTypeID()) return std::nullopt;
    const auto dictionary = static_cast<CFDictionaryRef>(object);
    const auto count = static_cast<std::size_t>(CFDictionaryGetCount(dictionary));
    std::vector<const void*> keys(count);
    std::vector<const void*> values(count);
    CFDictionaryGetKeysAndValues(dictionary, keys.data(), values.data());
    Entries entries;
    for (std::size_t place = 0; place < count; ++place) {
        if (auto key = text(keys[place])) entries.emplace(std::move(*key), values[place]);
    }
    return entries;
}

}  // namespace vantrel::macos::CFValues
