// Core Foundation objects for tests to read.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "macos/MacBench.h"
#include "platform/macos/CFHandle.h"
#include "platform/macos/CFText.h"

namespace vantrel::macos {

using Objects = std::vector<std::pair<CFTypeRef, CFTypeRef>>;

inline CFHandle<CFStringRef> textOf(const std::u16string& units) {
    return CFHandle(CFStringCreateWithCharacters(kCFAllocatorDefault,
                                                 reinterpret_cast<const UniChar*>(units.data()),
                                                 static_cast<CFIndex>(units.size())));
}
inline CFHandle<CFNumberRef> integerOf(std::int64_t value) {
    return CFHandle(CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt64Type, &value));
}
inline CFHandle<CFNumberRef> realOf(double value) {
    return CFHandle(CFNumberCreate(kCFAllocatorDefault, kCFNumberDoubleType, &value));
}
inline CFHandle<CFDataRef> dataOf(const std::string& bytes) {
    return CFHandle(CFDataCreate(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(bytes.data()),
                                 static_cast<CFIndex>(bytes.size())));
}
inline CFHandle<CFDictionaryRef> dictionaryOf(const Objects& entries) {
    std::vector<const void*> keys;
    std::vector<const void*> values;
    for (const auto& [key, value] : entries) {
        keys.push_back(key);
        values.push_back(value);
    }
    return CFHandle(CFDictionaryCreate(kCFAllocatorDefault, keys.data(), values.data(),
                                       static_cast<CFIndex>(keys.size()), &kCFTypeDictionaryKeyCallBacks,
                                       &kCFTypeDictionaryValueCallBacks));
}

// A Mac without displays.
class CFBench : public testing::Test {
  protected:
    void failNext(const char* function) { bench.fake.calls().failNext(function); }

    MacBench bench{simulated::Desk{}};
};

}  // namespace vantrel::macos
