#include "macos/fake/Objects.h"

#include <memory>
#include <mutex>

#include "runtime/Fatal.h"
#include "text/CodePoint.h"

namespace vantrel::macos::fake {
namespace {

std::mutex mutex;
std::vector<std::unique_ptr<Object>>& dead() {
    static std::vector<std::unique_ptr<Object>> objects;
    return objects;
}
std::atomic<std::size_t> living = 0;

}  // namespace

Object& liveObject(CFTypeRef reference) {
    runtime::require(reference != nullptr, "a Core Foundation function was called with null");
    Object& object = *const_cast<Object*>(static_cast<const Object*>(reference));
    runtime::require(object.references > 0, "a Core Foundation object was used after its last release");
    return object;
}

CFTypeRef born(Object* object) {
    ++living;
    return object;
}

std::size_t liveObjects() { return living; }

void bury() {
    const std::lock_guard lock(mutex);
    dead().clear();
}

std::u16string utf16(const std::string& utf8) {
    std::u16string units;
    for (std::string_view rest = utf8; !rest.empty();) {
        const text::CodePoint first = text::CodePoint::first(rest);
        rest.remove_prefix(first.length);
        if (first.value < 0x10000) {
            units += static_cast<char16_t>(first.value);
        } else {
            units += static_cast<char16_t>(0xD800 + ((first.value - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + ((first.value - 0x10000) & 0x3FF));
        }
    }
    return units;
}

void stopForWrongType() { runtime::fatal("a Core Foundation object of another type was given"); }

}  // namespace vantrel::macos::fake

using vantrel::macos::fake::liveObject;
using vantrel::macos::fake::Object;

extern "C" {

CFTypeID CFGetTypeID(CFTypeRef object) { return liveObject(object).type; }

CFTypeRef CFRetain(CFTypeRef object) {
    Object& held = liveObject(object);
    if (!held.isConstant) ++held.references;
    return object;
}

void CFRelease(CFTypeRef object) {
    Object& held = liveObject(object);
    if (held.isConstant) return;
    if (--held.references > 0) return;
    held.die();
    --vantrel::macos::fake::living;
    const std::lock_guard lock(vantrel::macos::fake::mutex);
    vantrel::macos::fake::dead().emplace_back(&held);
}

CFIndex CFGetRetainCount(CFTypeRef object) { return liveObject(object).references; }

}  // extern "C"
