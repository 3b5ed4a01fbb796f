// Strings, data, numbers, dictionaries, preferences and the main bundle.
#include <CoreFoundation/CoreFoundation.h>
#include <cmath>
#include <cstring>
#include <deque>
#include <map>
#include <memory>
#include <mutex>

#include "macos/fake/FakeMac.h"
#include "macos/fake/Objects.h"
#include "platform/macos/CFText.h"
#include "runtime/Fatal.h"
#include "text/UTF8.h"

namespace vantrel::macos::fake {
namespace {

bool fails(const char* function) { return FakeMac::current().calls().fails(function); }

const String& string(CFTypeRef reference) { return live<String>(reference, stringType); }

std::string utf8(CFStringRef reference) { return CFText::read(reference); }

// Constants with the same text are the same object.
CFStringRef constant(const char* text) {
    static std::mutex mutex;
    static std::map<std::string, std::unique_ptr<String>> constants;
    const std::lock_guard lock(mutex);
    auto& object = constants[text];
    if (!object) {
        object = std::make_unique<String>(utf16(text));
        object->isConstant = true;
    }
    return reinterpret_cast<CFStringRef>(static_cast<const Object*>(object.get()));
}

CFBooleanRef makeBoolean() {
    static std::deque<Object> all;
    Object& boolean = all.emplace_back(booleanType);
    boolean.isConstant = true;
    return reinterpret_cast<CFBooleanRef>(&boolean);
}

CFBundleRef mainBundle() {
    // No constant: whoever releases it, without ever having held it, is seen.
    static Object* const bundle = new Object(bundleType);
    return reinterpret_cast<CFBundleRef>(bundle);
}

// Whether `number` is a whole one within 64 bits.
bool isInteger(double number) {
    return number == std::floor(number) && number >= -9223372036854775808.0 && number < 9223372036854775808.0;
}

bool get(std::int64_t number, std::int64_t& result) {
    result = number;
    return true;
}
bool get(double number, std::int64_t& result) {
    if (!isInteger(number)) return false;
    result = static_cast<std::int64_t>(number);
    return true;
}
bool get(std::int64_t number, double& result) {
    result = static_cast<double>(number);
    return isInteger(result) && static_cast<std::int64_t>(result) == number;
}
bool get(double number, double& result) {
    result = number;
    return true;
}

template <class Result>
bool getNumber(CFNumberRef number, void* place) {
    Result result = 0;
    const bool isExact = std::visit([&result](auto value) { return get(value, result); },
                                    live<Number>(number, numberType).value);
    std::memcpy(place, &result, sizeof result);
    return isExact;
}

}  // namespace
}  // namespace vantrel::macos::fake

using namespace vantrel::macos::fake;

extern "C" {

const CFAllocatorRef kCFAllocatorDefault = nullptr;
const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks = {0};
const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks = {0};
const CFBooleanRef kCFBooleanTrue = makeBoolean();
const CFBooleanRef kCFBooleanFalse = makeBoolean();
const CFStringRef kCFPreferencesCurrentApplication = CFSTR("kCFPreferencesCurrentApplication");

CFStringRef __CFStringMakeConstantString(const char* text) { return constant(text); }

CFTypeID CFStringGetTypeID(void) { return stringType; }
CFTypeID CFDataGetTypeID(void) { return dataType; }
CFTypeID CFNumberGetTypeID(void) { return numberType; }
CFTypeID CFBooleanGetTypeID(void) { return booleanType; }
CFTypeID CFDictionaryGetTypeID(void) { return dictionaryType; }

CFStringRef CFStringCreateWithBytes(CFAllocatorRef, const UInt8* bytes, CFIndex count,
                                    CFStringEncoding encoding, Boolean isExternal) {
    vantrel::runtime::require(encoding == kCFStringEncodingUTF8 && isExternal == 0,
                              "a text in an encoding that nobody here needs");
    if (fails("CFStringCreateWithBytes")) return nullptr;
    const std::string text(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
    if (vantrel::text::repairedUTF8(text) != text) return nullptr;
    return static_cast<CFStringRef>(born(new String(utf16(text))));
}

CFStringRef CFStringCreateWithCharacters(CFAllocatorRef, const UniChar* units, CFIndex count) {
    if (fails("CFStringCreateWithCharacters")) return nullptr;
    return static_cast<CFStringRef>(born(new String(std::u16string(units, units + count))));
}

CFIndex CFStringGetLength(CFStringRef text) { return static_cast<CFIndex>(string(text).units.size()); }

void CFStringGetCharacters(CFStringRef text, CFRange range, UniChar* buffer) {
    const std::u16string& units = string(text).units;
    vantrel::runtime::require(range.location >= 0 && range.length >= 0 &&
                                  static_cast<std::size_t>(range.location + range.length) <= units.size(),
                              "characters behind the end of a text");
    std::copy_n(units.begin() + range.location, range.length, buffer);
}

CFDataRef CFDataCreate(CFAllocatorRef, const UInt8* bytes, CFIndex length) {
    if (fails("CFDataCreate")) return nullptr;
    return static_cast<CFDataRef>(
        born(new Data(std::string(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(length)))));
}
CFIndex CFDataGetLength(CFDataRef data) {
    return static_cast<CFIndex>(live<Data>(data, dataType).bytes.size());
}
const UInt8* CFDataGetBytePtr(CFDataRef data) {
    const std::string& bytes = live<Data>(data, dataType).bytes;
    return bytes.empty() ? nullptr : reinterpret_cast<const UInt8*>(bytes.data());
}

CFNumberRef CFNumberCreate(CFAllocatorRef, CFNumberType type, const void* value) {
    if (fails("CFNumberCreate")) return nullptr;
    Number::Value number;
    if (type == kCFNumberSInt64Type) {
        std::int64_t integer = 0;
        std::memcpy(&integer, value, sizeof integer);
        number = integer;
    } else {
        vantrel::runtime::require(type == kCFNumberDoubleType, "a number of a type that nobody here needs");
        double real = 0;
        std::memcpy(&real, value, sizeof real);
        number = real;
    }
    return static_cast<CFNumberRef>(born(new Number(number)));
}
CFNumberType CFNumberGetType(CFNumberRef number) {
    const bool isInteger = std::holds_alternative<std::int64_t>(live<Number>(number, numberType).value);
    return isInteger ? kCFNumberSInt64Type : kCFNumberFloat64Type;
}
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* place) {
    if (fails("CFNumberGetValue")) return false;
    if (type == kCFNumberSInt64Type) return getNumber<std::int64_t>(number, place);
    vantrel::runtime::require(type == kCFNumberDoubleType, "a number of a type that nobody here needs");
    return getNumber<double>(number, place);
}

CFDictionaryRef CFDictionaryCreate(CFAllocatorRef, const void** keys, const void** values, CFIndex count,
                                   const CFDictionaryKeyCallBacks* keyCallBacks,
                                   const CFDictionaryValueCallBacks* valueCallBacks) {
    vantrel::runtime::require(
        keyCallBacks == &kCFTypeDictionaryKeyCallBacks && valueCallBacks == &kCFTypeDictionaryValueCallBacks,
        "a dictionary that does not retain what it holds");
    if (fails("CFDictionaryCreate")) return nullptr;
    Dictionary::Entries entries;
    for (CFIndex place = 0; place < count; ++place) {
        entries.emplace_back(CFRetain(keys[place]), CFRetain(values[place]));
    }
    return static_cast<CFDictionaryRef>(born(new Dictionary(std::move(entries))));
}
CFIndex CFDictionaryGetCount(CFDictionaryRef dictionary) {
    return static_cast<CFIndex>(live<Dictionary>(dictionary, dictionaryType).entries.size());
}
void CFDictionaryGetKeysAndValues(CFDictionaryRef dictionary, const void** keys, const void** values) {
    for (const auto& [key, value] : live<Dictionary>(dictionary, dictionaryType).entries) {
        *keys++ = key;
        *values++ = value;
    }
}

CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef application) {
    vantrel::runtime::require(application == kCFPreferencesCurrentApplication,
                              "the preferences of another application");
    if (fails("CFPreferencesCopyAppValue")) return nullptr;
    const auto& preferences = FakeMac::current().preferences();
    const auto found = preferences.find(utf8(key));
    return found == preferences.end() ? nullptr : CFRetain(found->second.get());
}
void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef value, CFStringRef application) {
    vantrel::runtime::require(application == kCFPreferencesCurrentApplication,
                              "the preferences of another application");
    if (fails("CFPreferencesSetAppValue")) return;
    auto& preferences = FakeMac::current().preferences();
    if (value == nullptr) {
        preferences.erase(utf8(key));
    } else {
        preferences.insert_or_assign(utf8(key), vantrel::macos::CFHandle<CFTypeRef>(CFRetain(value)));
    }
}

CFBundleRef CFBundleGetMainBundle(void) {
    if (fails("CFBundleGetMainBundle")) return nullptr;
    return FakeMac::current().translations() ? mainBundle() : nullptr;
}
CFStringRef CFBundleCopyLocalizedString(CFBundleRef bundle, CFStringRef key, CFStringRef value,
                                        CFStringRef table) {
    vantrel::runtime::require(bundle == mainBundle() && table == nullptr, "a text of another table");
    if (fails("CFBundleCopyLocalizedString")) return nullptr;
    const auto& translations = *FakeMac::current().translations();
    const auto found = translations.find(utf8(key));
    if (found == translations.end()) return static_cast<CFStringRef>(CFRetain(value));
    return static_cast<CFStringRef>(born(new String(utf16(found->second))));
}

}  // extern "C"
