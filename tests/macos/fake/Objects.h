// Core Foundation objects with their retain counts. Dead ones are kept until they
// are buried, so that a use after the last release is always seen and stops the
// test, as does a release too many.
//
// Threads: any; bury() when nobody else is there.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace vantrel::macos::fake {

enum TypeID : CFTypeID {
    bundleType = 1,
    stringType,
    dataType,
    numberType,
    booleanType,
    dictionaryType,
    serviceType,
    runLoopType,
    sourceType,
    timerType,
    observerType,
};

struct Object {
    explicit Object(TypeID objectType) : type(objectType) {}
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object() = default;
    // Gives up what it holds, once nobody holds it.
    virtual void die() {}

    const TypeID type;
    std::atomic<int> references = 1;
    // Constants of the system live for ever.
    bool isConstant = false;
};

struct String : Object {
    explicit String(std::u16string text) : Object(stringType), units(std::move(text)) {}
    const std::u16string units;
};

struct Data : Object {
    explicit Data(std::string content) : Object(dataType), bytes(std::move(content)) {}
    const std::string bytes;
};

struct Number : Object {
    using Value = std::variant<std::int64_t, double>;
    explicit Number(Value number) : Object(numberType), value(number) {}
    const Value value;
};

struct Dictionary : Object {
    using Entries = std::vector<std::pair<CFTypeRef, CFTypeRef>>;
    // Takes over a reference to each key and value.
    explicit Dictionary(Entries held) : Object(dictionaryType), entries(std::move(held)) {}
    void die() override {
        for (const auto& [key, value] : entries) {
            CFRelease(key);
            CFRelease(value);
        }
    }
    const Entries entries;
};

// What a private function hands out.
struct Service : Object {
    Service(const void* deskHandle, std::function<void()> whenReleased)
        : Object(serviceType), handle(deskHandle), released(std::move(whenReleased)) {}
    void die() override { released(); }
    const void* const handle;
    const std::function<void()> released;
};

// The object behind a reference; one that is dead, or none, stops the test.
Object& liveObject(CFTypeRef reference);

template <class Kind>
Kind& live(CFTypeRef reference, TypeID type);

// Gives the one reference to a new object.
CFTypeRef born(Object* object);
// Objects that are held and are no constants.
std::size_t liveObjects();
void bury();

std::u16string utf16(const std::string& utf8);
void stopForWrongType();

template <class Kind>
Kind& live(CFTypeRef reference, TypeID type) {
    Object& object = liveObject(reference);
    if (object.type != type) stopForWrongType();
    return static_cast<Kind&>(object);
}

}  // namespace vantrel::macos::fake
